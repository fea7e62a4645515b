#include "ui/dialogs/restoredialog.h"

#include "app/text.h"
#include "ui/models/linesmodel.h"
#include "ui/window/emptyhint.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Mirrix {

RestoreDialog::RestoreDialog(const QStringList &lines, QWidget *parent)
    : QDialog(parent)
    , m_label(new QLabel)
    , m_filter(new QLineEdit)
    , m_list(new QListView)
    , m_rows(new LinesModel(lines, this))
{
    setObjectName(QStringLiteral("RestoreDialog"));
    m_filter->setObjectName(QStringLiteral("RestoreFilter"));
    m_filter->setClearButtonEnabled(true);
    m_list->setObjectName(QStringLiteral("RestoreList"));
    m_list->setUniformItemSizes(true);
    m_list->setSpacing(2);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setModel(m_rows);
    m_label->setBuddy(m_list);
    new EmptyHint(m_list, [] { return Text::tr("没有匹配的文件。"); });
    buildLayout();

    connect(m_filter, &QLineEdit::textChanged, m_rows, &LinesModel::setFilter);
    connect(m_rows, &LinesModel::filtered, this, &RestoreDialog::chooseFirst);
    connect(m_list, &QListView::doubleClicked, this, &QDialog::accept);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_restore->setEnabled(m_list->selectionModel()->hasSelection()); });
    retranslate();
    chooseFirst();
    m_list->setFocus();
}

void RestoreDialog::buildLayout()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_restore = buttons->button(QDialogButtonBox::Ok);
    m_restore->setObjectName(QStringLiteral("RestoreButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->setSpacing(8);
    column->addWidget(m_label);
    column->addWidget(m_filter);
    column->addWidget(m_list, 1);
    column->addWidget(buttons);
    resize(820, 440);
}

QList<qsizetype> RestoreDialog::chosen() const
{
    QList<qsizetype> rows;
    const QItemSelection ranges = m_list->selectionModel()->selection(); // far fewer than rows
    for (const QItemSelectionRange &range : ranges) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(m_rows->lineOf(row));
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void RestoreDialog::chooseFirst()
{
    m_list->setCurrentIndex(m_rows->index(0, 0));
    m_restore->setEnabled(m_rows->rowCount() > 0);
}

void RestoreDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void RestoreDialog::retranslate()
{
    setWindowTitle(Text::tr("恢复备份"));
    m_label->setText(Text::tr("选择要恢复的文件："));
    m_list->setAccessibleName(m_label->text());
    m_filter->setPlaceholderText(Text::tr("按路径筛选"));
    m_filter->setAccessibleName(Text::tr("按路径筛选"));
    m_restore->setText(Text::tr("恢复所选"));
}

} // namespace Mirrix
