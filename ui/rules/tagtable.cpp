#include "ui/rules/tagtable.h"

#include "app/text.h"
#include "ui/rules/rulecontrols.h"
#include "ui/texts/rulenames.h"

#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Mirrix {

namespace {

enum Column
{
    TagColumn,
    RuleColumn,
    ColumnCount
};

void showName(QComboBox *combo, const QString &name)
{
    const int item = combo->findData(name);
    combo->setCurrentIndex(item);
    if (item < 0)
        combo->setEditText(name);
}

/// A label of the list means its tag, also when typed; any other text means itself.
QString shownName(const QComboBox *combo)
{
    const QString text = combo->currentText().trimmed();
    const int item = combo->findText(text, Qt::MatchFixedString);
    return item < 0 ? text : combo->itemData(item).toString();
}

void labelTags(QComboBox *combo, const QList<TagName> &names)
{
    for (int item = 0; item < names.size(); ++item) {
        if (item == combo->count())
            combo->addItem(QString(), names[item].name);
        combo->setItemText(item, names[item].label);
    }
    combo->setAccessibleName(Text::tr("标签"));
}

void labelRules(QComboBox *combo)
{
    nameItems(combo, 3, tagRuleName);
    combo->setAccessibleName(Text::tr("匹配"));
}

} // namespace

TagTable::TagTable(NamesFunction names, QWidget *parent)
    : QGroupBox(parent)
    , m_names(names)
    , m_table(new QTableWidget(0, ColumnCount, this))
    , m_addButton(new QPushButton(this))
{
    setCheckable(true);
    m_table->setObjectName(QStringLiteral("TagRowsTable"));
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->setSelectionMode(QAbstractItemView::NoSelection);
    m_table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setFocusPolicy(Qt::NoFocus); // its cells have the focus
    m_addButton->setObjectName(QStringLiteral("AddTagButton"));

    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layout->addWidget(m_table);
    layout->addWidget(m_addButton, 0, Qt::AlignLeft);

    connect(this, &QGroupBox::toggled, this, &TagTable::changed);
    connect(m_addButton, &QPushButton::clicked, this, &TagTable::addOfferedRow);
    retranslate();
}

TagRules TagTable::state() const
{
    TagRules rules;
    rules.enabled = isChecked();
    for (int row = 0; row < m_table->rowCount(); ++row)
        rules.rows.append(rowAt(row));
    return rules;
}

void TagTable::setState(const TagRules &rules)
{
    {
        const QSignalBlocker quiet(this);
        setChecked(rules.enabled);
        m_table->setRowCount(0);
        for (const TagRow &row : rules.rows)
            addRow(row);
        arrangeRows();
    }
    emit changed();
}

void TagTable::changeEvent(QEvent *event)
{
    QGroupBox::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        arrangeRows();
}

void TagTable::retranslate()
{
    setToolTip(Text::tr("勾选=启用标签匹配；取消=忽略本组标签，仅用其它条件分组"));
    m_table->setHorizontalHeaderLabels({Text::tr("标签"), Text::tr("匹配")});
    m_addButton->setText(Text::tr("+ 添加"));
    const QList<TagName> names = m_names();
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const QString name = rowAt(row).name; // found by the labels of the language before
        labelTags(comboAt(row, TagColumn), names);
        showName(comboAt(row, TagColumn), name);
        labelRules(comboAt(row, RuleColumn));
    }
}

void TagTable::addRow(const TagRow &row)
{
    auto *tag = makeCombo(m_table, QStringLiteral("TagCombo"));
    tag->setEditable(true);
    tag->setInsertPolicy(QComboBox::NoInsert);
    labelTags(tag, m_names());
    showName(tag, row.name);
    auto *rule = makeCombo(m_table, QStringLiteral("TagRuleCombo"));
    labelRules(rule);
    rule->setCurrentIndex(rule->findData(row.rule));

    const int index = m_table->rowCount();
    m_table->insertRow(index);
    m_table->setCellWidget(index, TagColumn, tag);
    m_table->setCellWidget(index, RuleColumn, rule);
    connect(tag, &QComboBox::currentTextChanged, this, &TagTable::changed);
    connect(rule, &QComboBox::currentIndexChanged, this, &TagTable::changed);
}

void TagTable::addOfferedRow()
{
    const QList<TagRow> present = state().rows;
    TagRow added;
    for (const TagName &offered : m_names()) {
        const auto isOffered = [&](const TagRow &row) { return row.name == offered.name; };
        if (std::none_of(present.begin(), present.end(), isOffered)) {
            added.name = offered.name;
            break;
        }
    }
    addRow(added);
    arrangeRows();
    comboAt(m_table->rowCount() - 1, TagColumn)->setFocus();
    emit changed();
}

/// The page scrolls, so the table is as high as its rows. New rows come last in the tab order unless it is set.
void TagTable::arrangeRows()
{
    QWidget *previous = this;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        m_table->setRowHeight(row, comboAt(row, TagColumn)->sizeHint().height());
        setTabOrder(previous, comboAt(row, TagColumn));
        setTabOrder(comboAt(row, TagColumn), comboAt(row, RuleColumn));
        previous = comboAt(row, RuleColumn);
    }
    setTabOrder(previous, m_addButton);
    m_table->setFixedHeight(m_table->horizontalHeader()->sizeHint().height() + m_table->verticalHeader()->length() +
                            2 * m_table->frameWidth());
}

TagRow TagTable::rowAt(int row) const
{
    return {shownName(comboAt(row, TagColumn)), comboAt(row, RuleColumn)->currentData().toInt()};
}

QComboBox *TagTable::comboAt(int row, int column) const
{
    return static_cast<QComboBox *>(m_table->cellWidget(row, column));
}

} // namespace Mirrix
