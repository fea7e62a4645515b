#pragma once

#include "ui/state/rulesstate.h"
#include "ui/texts/tagnames.h"

#include <QGroupBox>

class QComboBox;
class QPushButton;
class QTableWidget;

namespace Mirrix {

/// A table of tags and what each must fulfil, in a box that turns the tags on. Tags can be chosen or typed.
class TagTable : public QGroupBox
{
    Q_OBJECT

public:
    using NamesFunction = QList<TagName> (*)();

    /// `names` gives the tags offered, in the current language.
    explicit TagTable(NamesFunction names, QWidget *parent = nullptr);

    [[nodiscard]] TagRules state() const;
    void setState(const TagRules &rules);

signals:
    void changed();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void addRow(const TagRow &row);
    void addOfferedRow();
    void arrangeRows();
    [[nodiscard]] TagRow rowAt(int row) const;
    [[nodiscard]] QComboBox *comboAt(int row, int column) const;

    NamesFunction m_names;
    QTableWidget *m_table;
    QPushButton *m_addButton;
};

} // namespace Mirrix
