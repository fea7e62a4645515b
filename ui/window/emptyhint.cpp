#include "ui/window/emptyhint.h"

#include <QAbstractItemView>
#include <QEvent>

namespace Mirrix {

EmptyHint::EmptyHint(QAbstractItemView *view, std::function<QString()> text)
    : QLabel(view->viewport())
    , m_view(view)
    , m_source(std::move(text))
{
    constexpr int margin = 24;
    setObjectName(QStringLiteral("EmptyHint"));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setMargin(margin);
    setAttribute(Qt::WA_TransparentForMouseEvents); // files are dropped on the view
    view->viewport()->installEventFilter(this);
    const QAbstractItemModel *model = view->model();
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyHint::refresh);
    connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyHint::refresh);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &EmptyHint::refresh);
    refresh();
}

void EmptyHint::refresh()
{
    setText(m_source());
    setVisible(m_view->model()->rowCount(m_view->rootIndex()) == 0);
    setGeometry(m_view->viewport()->rect());
}

bool EmptyHint::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(m_view->viewport()->rect());
    return QLabel::eventFilter(watched, event);
}

void EmptyHint::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    QLabel::changeEvent(event);
}

} // namespace Mirrix
