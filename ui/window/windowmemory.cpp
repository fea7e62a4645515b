#include "ui/window/windowmemory.h"

#include "ui/state/windowplace.h"

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QHeaderView>
#include <QJsonArray>
#include <QScreen>
#include <QSplitter>

#include <algorithm>

namespace Mirrix {

namespace {

const QString placeKey = QStringLiteral("place");
const QString maximizedKey = QStringLiteral("maximized");
const QString splittersKey = QStringLiteral("splitters");
const QString columnsKey = QStringLiteral("columns");

QJsonArray toJson(const QList<int> &numbers)
{
    QJsonArray array;
    for (int number : numbers)
        array.append(number);
    return array;
}

QList<int> toNumbers(const QJsonValue &json)
{
    QList<int> numbers;
    const QJsonArray array = json.toArray();
    for (const QJsonValue &number : array)
        numbers.append(number.toInt());
    return numbers;
}

/// The columns whose width is the user's choice.
QHeaderView *headerOf(QAbstractItemView *view)
{
    auto *header = view->findChild<QHeaderView *>();
    return header && header->orientation() == Qt::Horizontal && !view->objectName().isEmpty() ? header : nullptr;
}

bool isChosenByUser(const QHeaderView &header, int column)
{
    return header.sectionResizeMode(column) == QHeaderView::Interactive;
}

QList<int> widthsOf(const QHeaderView &header)
{
    QList<int> widths;
    for (int column = 0; column < header.count(); ++column)
        widths.append(header.sectionSize(column));
    return widths;
}

void setWidths(QHeaderView &header, const QList<int> &widths)
{
    for (int column = 0; column < header.count() && widths.size() == header.count(); ++column) {
        if (isChosenByUser(header, column) && widths[column] > 0)
            header.resizeSection(column, widths[column]);
    }
}

/// Calls `splitter` and `header` for each of the window's that has a name.
template <typename ForSplitter, typename ForHeader>
void visit(const QWidget &window, const ForSplitter &splitter, const ForHeader &header)
{
    for (QSplitter *found : window.findChildren<QSplitter *>()) {
        if (!found->objectName().isEmpty())
            splitter(*found);
    }
    for (QAbstractItemView *view : window.findChildren<QAbstractItemView *>()) {
        if (QHeaderView *found = headerOf(view))
            header(*found, view->objectName());
    }
}

bool restorePlace(QWidget &window, const QJsonObject &memory)
{
    const QList<int> numbers = toNumbers(memory[placeKey]);
    if (numbers.size() != 4)
        return false;
    QList<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    const QRect place = restoredGeometry({numbers[0], numbers[1], numbers[2], numbers[3]}, screens);
    if (!place.isEmpty())
        window.setGeometry(place);
    return !place.isEmpty();
}

} // namespace

QJsonObject windowMemory(const QWidget &window, const QJsonObject &earlier)
{
    QJsonObject memory = earlier;
    const QRect place = window.isMaximized() ? window.normalGeometry() : window.geometry();
    memory[placeKey] = toJson({place.x(), place.y(), place.width(), place.height()});
    memory[maximizedKey] = window.isMaximized();
    QJsonObject splitters = memory[splittersKey].toObject();
    QJsonObject columns = memory[columnsKey].toObject();
    visit(
        window,
        [&splitters](const QSplitter &splitter) {
            const QList<int> sizes = splitter.sizes(); // all 0 before it was shown
            if (std::any_of(sizes.begin(), sizes.end(), [](int size) { return size > 0; }))
                splitters[splitter.objectName()] = toJson(sizes);
        },
        [&columns](const QHeaderView &header, const QString &name) { columns[name] = toJson(widthsOf(header)); });
    memory[splittersKey] = splitters;
    memory[columnsKey] = columns;
    return memory;
}

void restoreWindow(QWidget &window, const QJsonObject &memory, const QSize &ideal)
{
    if (!restorePlace(window, memory))
        window.setGeometry(firstPlace(ideal, QGuiApplication::primaryScreen()->availableGeometry()));
    if (memory[maximizedKey].toBool())
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    const QJsonObject splitters = memory[splittersKey].toObject();
    const QJsonObject columns = memory[columnsKey].toObject();
    visit(
        window,
        [&splitters](QSplitter &splitter) {
            const QList<int> sizes = toNumbers(splitters[splitter.objectName()]);
            if (sizes.size() == splitter.count())
                splitter.setSizes(sizes);
        },
        [&columns](QHeaderView &header, const QString &name) { setWidths(header, toNumbers(columns[name])); });
}

} // namespace Mirrix
