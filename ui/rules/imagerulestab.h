#pragma once

#include "ui/rules/recordbinding.h"
#include "ui/state/rulesstate.h"

#include <QWidget>

class QBoxLayout;
class QCheckBox;
class QGroupBox;
class QLabel;

namespace Mirrix {

class TagTable;

/// The rules of the image mode.
class ImageRulesTab : public QWidget
{
    Q_OBJECT

public:
    explicit ImageRulesTab(QWidget *parent = nullptr);

    [[nodiscard]] ImageRules state() const;
    void setState(const ImageRules &rules);

signals:
    void changed();

protected:
    void changeEvent(QEvent *event) override;

private:
    void layOutShape(QBoxLayout *layout);
    void layOutOrigin(QBoxLayout *layout);
    void layOutReading(QBoxLayout *layout);
    void bind();
    void retranslate();
    void retranslateShape();
    void retranslateOrigin();

    QGroupBox *m_box;
    QLabel *m_precisionTitle;
    QLabel *m_similarityLabel;
    QComboBox *m_similarity;
    QLabel *m_dimensionsTitle;
    QCheckBox *m_sameDimensions;
    QLabel *m_toleranceLabel;
    QSpinBox *m_tolerance;
    QLabel *m_aspectTitle;
    QCheckBox *m_sameAspect;
    QLabel *m_transformTitle;
    QCheckBox *m_findRotated;
    QCheckBox *m_findFlipped;
    QCheckBox *m_matchHistogram;
    QLabel *m_timeTitle;
    QCheckBox *m_groupByTime;
    QSpinBox *m_seconds;
    QLabel *m_gpsTitle;
    QCheckBox *m_groupByGps;
    QSpinBox *m_metres;
    QCheckBox *m_rawPreview;
    QLabel *m_performanceTitle;
    QCheckBox *m_featureCache;
    TagTable *m_tags;

    RecordBinding<ImageRules> m_binding;
};

} // namespace Mirrix
