#pragma once

#include <QLabel>

#include <functional>

class QAbstractItemView;

namespace Mirrix {

/// What an empty list says in its middle, such as what to do to fill it. Shows and hides itself as rows come and go,
/// and asks for its text again each time and in another language.
class EmptyHint : public QLabel
{
    Q_OBJECT

public:
    /// `view`, which has its model, owns it.
    EmptyHint(QAbstractItemView *view, std::function<QString()> text);

    /// To call when the text has changed although the list is as empty as before.
    void refresh();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    QAbstractItemView *m_view;
    std::function<QString()> m_source;
};

} // namespace Mirrix
