#pragma once

#include "ui/rules/recordbinding.h"
#include "ui/state/rulesstate.h"

#include <QWidget>

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QRadioButton;

namespace Mirrix {

/// The rules of the general mode: how contents are compared, and the rules on names, sizes, dates and paths that hold
/// in every mode.
class GeneralRulesTab : public QWidget
{
    Q_OBJECT

public:
    explicit GeneralRulesTab(QWidget *parent = nullptr);

    [[nodiscard]] GeneralRules state() const;
    void setState(const GeneralRules &rules);

signals:
    void changed();

protected:
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] QGroupBox *makeContentBox();
    [[nodiscard]] QGroupBox *makeCriteriaBox();
    void layOutNamesAndSizes(QBoxLayout *layout);
    void layOutDatesAndPlaces(QBoxLayout *layout);
    void layOutPathsAndText(QBoxLayout *layout);
    void bind();
    void retranslate();
    void retranslateContent();
    void retranslateNamesAndSizes();
    void retranslateDatesAndPlaces();
    void retranslatePathsAndText();

    QGroupBox *m_contentBox;
    QButtonGroup *m_contentButtons;
    QRadioButton *m_sameContent;
    QRadioButton *m_similarContent;
    QRadioButton *m_ignoreContent;
    QSpinBox *m_similarPercent;
    QLabel *m_ignoreContentHint;

    QGroupBox *m_criteriaBox;
    QLabel *m_nameTitle;
    QCheckBox *m_sameName;
    QCheckBox *m_sameExtension;
    QCheckBox *m_similarNames;
    QCheckBox *m_ignoreCopyWords;
    QCheckBox *m_copyWordsInAllLanguages;
    QLabel *m_sizeTitle;
    QCheckBox *m_sameSize;
    QLabel *m_sizeToleranceLabel;
    QSpinBox *m_sizeTolerance;
    QComboBox *m_sizeUnit;
    QLabel *m_dateTitle;
    QCheckBox *m_sameCreated;
    QCheckBox *m_createdDateOnly;
    QCheckBox *m_sameModified;
    QCheckBox *m_modifiedDateOnly;
    QLabel *m_driveTitle;
    QCheckBox *m_sameDrive;
    QLabel *m_pathTitle;
    QCheckBox *m_sameFolderName;
    QCheckBox *m_fullPath;
    QLabel *m_pathDepthLabel;
    QSpinBox *m_pathDepth;
    QCheckBox *m_pathUnderRoot;
    QCheckBox *m_ignoreSameFolder;
    QLabel *m_textTitle;
    QCheckBox *m_caseSensitive;
    QLabel *m_nameToleranceLabel;
    QSpinBox *m_nameTolerance;

    RecordBinding<GeneralRules> m_binding;
};

} // namespace Mirrix
