#pragma once

#include "ui/rules/recordbinding.h"
#include "ui/state/rulesstate.h"

#include <QWidget>

namespace Mirrix {

class MediaMatchBox;
class TagTable;

/// The rules of the audio mode.
class AudioRulesTab : public QWidget
{
    Q_OBJECT

public:
    explicit AudioRulesTab(QWidget *parent = nullptr);

    [[nodiscard]] AudioRules state() const;
    void setState(const AudioRules &rules);

signals:
    void changed();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    MediaMatchBox *m_box;
    QSpinBox *m_tolerance;
    TagTable *m_tags;
    RecordBinding<AudioRules> m_binding;
};

} // namespace Mirrix
