#include "tests/ui/clipping.h"

#include "tests/ui/uitest.h"

namespace MirrixTest {

namespace {

constexpr int slack = 1; ///< fractions of a pixel, rounded

QString nameOf(const QWidget &widget, const QString &text)
{
    return u"%1 %2 \"%3\" %4x%5: "_s
        .arg(QLatin1String(widget.metaObject()->className()), widget.objectName(), text.left(60))
        .arg(widget.width())
        .arg(widget.height());
}

bool isTooSmall(const QSize &size, const QSize &needed)
{
    return size.width() + slack < needed.width() || size.height() + slack < needed.height();
}

QSize neededBy(const QLabel &label)
{
    if (!label.wordWrap())
        return label.sizeHint();
    if (label.parentWidget() && qobject_cast<const QScrollArea *>(label.parentWidget()->parentWidget()))
        return {label.minimumSizeHint().width(), 0}; // scrolled
    return {label.minimumSizeHint().width(), label.heightForWidth(label.width())};
}

QString problemOf(const QWidget &widget)
{
    const auto need = [&widget](const QString &text, const QSize &size, const QSize &needed) {
        return text.isEmpty() || !isTooSmall(size, needed)
                   ? QString()
                   : nameOf(widget, text) + u"needs %1x%2"_s.arg(needed.width()).arg(needed.height());
    };
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return need(label->text(), label->size(), neededBy(*label));
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return need(button->text(), button->size(), button->sizeHint());
    if (const auto *box = qobject_cast<const QGroupBox *>(&widget))
        return need(box->title(), {box->width(), 0}, {box->fontMetrics().horizontalAdvance(box->title()) + 8, 0});
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget)) {
        const QString text = edit->placeholderText();
        return need(text, {edit->width(), 0}, {edit->fontMetrics().horizontalAdvance(text) + 12, 0});
    }
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        const QRect field =
            combo->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo);
        const QString text = combo->currentText();
        return need(text, {field.width(), 0}, {combo->fontMetrics().horizontalAdvance(text), 0});
    }
    return {};
}

QStringList problemsOfHeader(const QHeaderView &header)
{
    QStringList found;
    if (header.orientation() != Qt::Horizontal)
        return found;
    for (int section = 0; section < header.count(); ++section) {
        const QString title = header.model()->headerData(section, Qt::Horizontal).toString();
        const int needed = header.fontMetrics().size(0, title).width() + 12;
        if (!title.isEmpty() && !header.isSectionHidden(section) && header.sectionSize(section) + slack < needed)
            found.append(nameOf(header, title) +
                         u"section has %1, needs %2"_s.arg(header.sectionSize(section)).arg(needed));
    }
    if (header.length() > header.viewport()->width() + slack)
        found.append(nameOf(*header.parentWidget(), {}) + u"columns take %1"_s.arg(header.length()));
    return found;
}

QStringList problemsOfTabs(const QTabBar &bar)
{
    QStringList found;
    for (int tab = 0; tab < bar.count(); ++tab) {
        const int needed = bar.fontMetrics().horizontalAdvance(bar.tabText(tab)) + 12;
        const QRect place = bar.tabRect(tab);
        if (place.width() + slack < needed || !bar.rect().contains(place.adjusted(slack, slack, -slack, -slack)))
            found.append(nameOf(bar, bar.tabText(tab)) + u"tab cut off"_s);
    }
    return found;
}

/// Widgets that one layout has put over each other.
QStringList overlapsIn(const QLayout &layout)
{
    QStringList found;
    QList<const QWidget *> placed;
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem *item = layout.itemAt(i);
        if (item->layout())
            found += overlapsIn(*item->layout());
        const QWidget *widget = item->widget();
        if (!widget || !widget->isVisible())
            continue;
        for (const QWidget *other : std::as_const(placed)) {
            if (widget->geometry().intersects(other->geometry()))
                found.append(nameOf(*widget, {}) + u"lies over "_s + nameOf(*other, {}));
        }
        placed.append(widget);
    }
    return found;
}

} // namespace

QStringList clippedTexts(const QWidget &window)
{
    QStringList found;
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible() || widget->property("elided").toBool())
            continue;
        if (const QString problem = problemOf(*widget); !problem.isEmpty())
            found.append(problem);
        if (const auto *header = qobject_cast<const QHeaderView *>(widget))
            found += problemsOfHeader(*header);
        if (const auto *bar = qobject_cast<const QTabBar *>(widget))
            found += problemsOfTabs(*bar);
        if (const auto *area = qobject_cast<const QScrollArea *>(widget)) {
            if (area->widget() && area->widget()->width() > area->viewport()->width() + slack)
                found.append(nameOf(*area, {}) + u"must be scrolled sideways"_s);
            const bool isPage = area->objectName() == "WizardPageScroll"_L1;
            if (isPage && area->widget()->height() > area->viewport()->height() + slack)
                found.append(nameOf(*area, {}) + u"must be scrolled"_s);
        }
        if (widget->layout())
            found += overlapsIn(*widget->layout());
    }
    if (window.layout())
        found += overlapsIn(*window.layout());
    return found;
}

} // namespace MirrixTest
