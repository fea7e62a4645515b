#include "ui/rules/rulecontrols.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QSpinBox>

namespace Mirrix {

namespace {

class WheelGuard : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *control = qobject_cast<QWidget *>(watched);
        if (event->type() != QEvent::Wheel || !control || control->hasFocus())
            return QObject::eventFilter(watched, event);
        event->ignore(); // passed on to the scroll area
        return true;
    }
};

} // namespace

void guardWheel(QWidget *control)
{
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(new WheelGuard(control));
}

QCheckBox *makeCheck(QWidget *parent, const QString &name)
{
    auto *check = new QCheckBox(parent);
    check->setObjectName(name);
    return check;
}

QSpinBox *makeSpin(QWidget *parent, const QString &name, int least, int most)
{
    auto *spin = new QSpinBox(parent);
    spin->setObjectName(name);
    spin->setRange(least, most);
    guardWheel(spin);
    return spin;
}

QComboBox *makeCombo(QWidget *parent, const QString &name)
{
    auto *combo = new QComboBox(parent);
    combo->setObjectName(name);
    // Long names shorten the closed combo instead of widening the page; the open list shows them whole.
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(12);
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    guardWheel(combo);
    return combo;
}

QLabel *makeLabelFor(QWidget *control)
{
    auto *label = new QLabel(control->parentWidget());
    label->setBuddy(control);
    return label;
}

QLabel *makeHint(QWidget *parent)
{
    auto *hint = new QLabel(parent);
    hint->setObjectName(QStringLiteral("SecondaryHintLabel"));
    hint->setWordWrap(true);
    return hint;
}

QLabel *addSection(QBoxLayout *layout, QWidget *parent)
{
    auto *title = new QLabel(parent);
    title->setObjectName(QStringLiteral("RulesSectionTitle"));
    QFont font = title->font();
    font.setBold(true);
    title->setFont(font);
    if (layout->count() > 0)
        layout->addSpacing(4);
    layout->addWidget(title);
    return title;
}

void addRow(QBoxLayout *layout, std::initializer_list<QWidget *> controls)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    bool filled = false;
    for (QWidget *control : controls) {
        row->addWidget(control);
        filled = filled || control->sizePolicy().expandingDirections().testFlag(Qt::Horizontal);
    }
    if (!filled)
        row->addStretch();
    layout->addLayout(row);
}

void enableWhile(QAbstractButton *button, std::initializer_list<QWidget *> controls)
{
    for (QWidget *control : controls) {
        control->setEnabled(button->isChecked());
        QObject::connect(button, &QAbstractButton::toggled, control, &QWidget::setEnabled);
    }
}

void nameItems(QComboBox *combo, int count, QString (*nameOf)(qint32))
{
    for (int item = 0; item < count; ++item) {
        if (item == combo->count())
            combo->addItem(QString(), item);
        combo->setItemText(item, nameOf(item));
    }
}

} // namespace Mirrix
