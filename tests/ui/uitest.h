#pragma once

#include "tests/support/temptree.h"
#include "tests/ui/scriptedprompts.h"

#include <QSignalSpy>
#include <QTest>
#include <QtWidgets>

#include <algorithm>

// What the tests of widgets share.

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace MirrixTest {

/// The widget of that name or, without one, the first of its kind; a missing one ends the test program.
template <typename Widget = QAbstractButton>
Widget *part(const QWidget &window, const QString &name = {})
{
    auto *widget = window.findChild<Widget *>(name);
    if (!widget)
        qFatal("no widget %s", qPrintable(name));
    return widget;
}

inline void click(const QWidget &window, const QString &button = {})
{
    QTest::mouseClick(part(window, button), Qt::LeftButton);
}

/// Triggers the action with that text, as from a menu; a missing one ends the test program.
inline void triggerAction(const QWidget &window, const QString &text)
{
    const auto actions = window.findChildren<QAction *>();
    const auto isMeant = [&text](const QAction *action) { return action->text() == text; };
    const auto found = std::find_if(actions.begin(), actions.end(), isMeant);
    if (found == actions.end())
        qFatal("no action %s", qPrintable(text));
    (*found)->trigger();
}

/// A column of the rows below `parent`, joined by "|".
inline QString columnText(const QAbstractItemModel &model, int column, const QModelIndex &parent = {})
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row)
        texts.append(model.index(row, column, parent).data().toString());
    return texts.join(u'|');
}

/// Drops files, folders and a link to a web page, offered to be moved; the drop must copy.
inline void dropOn(QWidget &widget, const QStringList &paths)
{
    QList<QUrl> urls = {QUrl(u"https://localhost/a"_s)};
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    QMimeData data;
    data.setUrls(urls);
    constexpr QPoint place(5, 5);
    // A drop reaches only a widget that has taken the drag before.
    QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(&widget, &drop);
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
}

} // namespace MirrixTest
