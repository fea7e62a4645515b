#pragma once

#include "ui/rules/recordbinding.h"
#include "ui/state/rulesstate.h"

#include <QWidget>

namespace Mirrix {

class MediaMatchBox;
class TagTable;

/// The rules of the video mode.
class VideoRulesTab : public QWidget
{
    Q_OBJECT

public:
    explicit VideoRulesTab(QWidget *parent = nullptr);

    [[nodiscard]] VideoRules state() const;
    void setState(const VideoRules &rules);

signals:
    void changed();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    MediaMatchBox *m_box;
    QTimeEdit *m_tolerance;
    TagTable *m_tags;
    RecordBinding<VideoRules> m_binding;
};

} // namespace Mirrix
