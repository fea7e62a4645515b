#pragma once

#include "ui/results/pictureloader.h"

#include <QFrame>
#include <QPixmap>
#include <QWidget>

#include <optional>

class QLabel;
class QScrollArea;

namespace Mirrix {

/// A picture in the middle of the room there is, or a text instead.
class PreviewCanvas : public QFrame
{
    Q_OBJECT

public:
    explicit PreviewCanvas(QWidget *parent = nullptr);

    void showPicture(const QImage &image);
    void showText(const QString &text);

    [[nodiscard]] QString text() const { return m_text; }
    [[nodiscard]] bool hasPicture() const { return !m_picture.isNull(); }

    QSize sizeHint() const override { return {260, 200}; }
    QSize minimumSizeHint() const override { return {120, 90}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_picture;
    QString m_text;
};

/// Shows one file: its picture, decoded elsewhere, and what is known of it. The latest file wins.
class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewPane(QWidget *parent = nullptr);

    void showFile(const MirrixCore::FileEntry &file);
    void showFolder(const QString &path);
    void clear();

    [[nodiscard]] PictureLoader &loader() { return m_loader; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void showLoaded(const LoadedPicture &loaded);

    QLabel *m_title;
    PreviewCanvas *m_canvas;
    QScrollArea *m_facts;
    QLabel *m_text;
    std::optional<MirrixCore::FileEntry> m_file;
    Picture m_picture;
    bool m_isLoaded = false;
    QString m_folder;
    PictureLoader m_loader;
};

} // namespace Mirrix
