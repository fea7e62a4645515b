#pragma once

#include "ui/state/rulesstate.h"

#include <QWidget>

class QCheckBox;
class QTabWidget;

namespace Mirrix {

class AudioRulesTab;
class FileTypesBox;
class GeneralRulesTab;
class ImageRulesTab;
class VideoRulesTab;

/// The second step: a tab of rules for each mode, and beside them what holds in every mode.
class RulesPage : public QWidget
{
    Q_OBJECT

public:
    explicit RulesPage(QWidget *parent = nullptr);

    [[nodiscard]] RulesState state() const;
    void setState(const RulesState &rules);

signals:
    void changed(); ///< a control, or the mode

protected:
    void changeEvent(QEvent *event) override;

private:
    void addTab(QWidget *tab, const QString &name);
    [[nodiscard]] QWidget *makeCommonSide();
    void retranslate();

    QTabWidget *m_tabs;
    GeneralRulesTab *m_general;
    ImageRulesTab *m_image;
    AudioRulesTab *m_audio;
    VideoRulesTab *m_video;
    FileTypesBox *m_fileTypes;
    QCheckBox *m_ignoreHardLinks;
};

} // namespace Mirrix
