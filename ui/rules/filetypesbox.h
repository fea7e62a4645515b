#pragma once

#include "ui/rules/recordbinding.h"
#include "ui/state/rulesstate.h"

#include <QGroupBox>

class QBoxLayout;
class QCheckBox;
class QLabel;

namespace Mirrix {

/// Which files take part, in every mode: extensions, sizes and dates.
class FileTypesBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit FileTypesBox(QWidget *parent = nullptr);

    [[nodiscard]] FileTypeFilters state() const;
    void setState(const FileTypeFilters &filters);

signals:
    void changed();

protected:
    void changeEvent(QEvent *event) override;

private:
    void layOutExtensions(QBoxLayout *layout);
    void layOutSizes(QBoxLayout *layout);
    void layOutDates(QBoxLayout *layout);
    [[nodiscard]] QDateTimeEdit *makeDateEdit(const QString &name);
    void bind();
    void retranslate();
    void retranslateSizesAndDates();

    QLabel *m_extensionTitle;
    QCheckBox *m_modeExtensions;
    QLabel *m_includeLabel;
    QLineEdit *m_include;
    QLabel *m_excludeLabel;
    QLineEdit *m_exclude;
    QCheckBox *m_includeRaw;
    QLabel *m_sizeTitle;
    QCheckBox *m_anySize;
    QLabel *m_leastLabel;
    QSpinBox *m_least;
    QLabel *m_mostLabel;
    QSpinBox *m_most;
    QLabel *m_dateTitle;
    QCheckBox *m_anyDate;
    QLabel *m_createdLabel;
    QDateTimeEdit *m_createdFrom;
    QDateTimeEdit *m_createdTo;
    QLabel *m_modifiedLabel;
    QDateTimeEdit *m_modifiedFrom;
    QDateTimeEdit *m_modifiedTo;

    RecordBinding<FileTypeFilters> m_binding;
};

} // namespace Mirrix
