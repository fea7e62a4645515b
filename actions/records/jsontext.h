#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace Mirrix {

/// Appends `text` to `out` as a JSON string, quotes included. Lone surrogates, of which names of files that are no
/// Unicode consist, are written as \uXXXX, which QJsonDocument reads back. Takes a fraction of QJsonDocument's time.
void appendJsonText(QByteArray &out, const QString &text);

/// Builds the text of one array, or of one object's members, in compact form.
class JsonPieces
{
public:
    JsonPieces &add(const QString &text);
    JsonPieces &add(qint64 number);

    /// A member; `name` must need no escape.
    template <typename Value>
    JsonPieces &add(const char *name, const Value &value)
    {
        separate();
        m_text.append('"').append(name).append("\":");
        m_isFirst = true;
        return add(value);
    }

    /// All members of `object`.
    JsonPieces &addMembers(const QJsonObject &object);

    [[nodiscard]] QByteArray row() const { return '[' + m_text + ']'; }
    [[nodiscard]] QByteArray object() const { return '{' + m_text + '}'; }

private:
    void separate();

    QByteArray m_text;
    bool m_isFirst = true;
};

} // namespace Mirrix
