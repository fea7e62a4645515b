#pragma once

#include "core/model/fileentry.h"
#include "ui/state/picture.h"

#include <QFutureWatcher>
#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace Mirrix {

/// One picture file with its facts. Starts reading at once, on a pool thread.
class ImagePane : public QWidget
{
    Q_OBJECT

public:
    explicit ImagePane(const QString &path, QWidget *parent = nullptr);

    void setTitle(const QString &title);

signals:
    /// Picture and facts are shown, or what there is of them.
    void loaded();

protected:
    void changeEvent(QEvent *event) override;

private:
    struct Content
    {
        Picture picture;
        MirrixCore::FileEntry facts;
    };

    void load();
    void showContent(const Content &content);

    QString m_path;
    MirrixCore::FileEntry m_facts;
    QLabel *m_title;
    QLabel *m_canvas;
    QPlainTextEdit *m_sheet;
    QFutureWatcher<Content> m_reading;
};

} // namespace Mirrix
