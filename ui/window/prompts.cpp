#include "ui/window/prompts.h"

#include "ui/texts/boxtext.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace Mirrix {

namespace {

/// Texts name files, which may look like markup and may be many.
int showBox(QMessageBox &box, const QString &text, const QString &note = {})
{
    const BoxText fitted = boxText(text);
    box.setTextFormat(Qt::PlainText);
    box.setText(fitted.shown);
    box.setInformativeText(note);
    box.setDetailedText(fitted.details);
    return box.exec();
}

} // namespace

void DialogPrompts::inform(QWidget *parent, const QString &title, const QString &text, const QString &note)
{
    QMessageBox box(QMessageBox::Information, title, {}, QMessageBox::Ok, parent);
    showBox(box, text, note);
}

bool DialogPrompts::informWithAction(QWidget *parent, const QString &title, const QString &text, const QString &note,
                                     const QString &action)
{
    QMessageBox box(QMessageBox::Information, title, {}, QMessageBox::Ok, parent);
    const QPushButton *button = box.addButton(action, QMessageBox::ActionRole);
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    showBox(box, text, note);
    return box.clickedButton() == button;
}

void DialogPrompts::warn(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box(QMessageBox::Warning, title, {}, QMessageBox::Ok, parent);
    showBox(box, text);
}

void DialogPrompts::fail(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box(QMessageBox::Critical, title, {}, QMessageBox::Ok, parent);
    showBox(box, text);
}

bool DialogPrompts::ask(QWidget *parent, const QString &title, const QString &text, const QString &note)
{
    QMessageBox box(QMessageBox::Question, title, {}, QMessageBox::Yes | QMessageBox::No, parent);
    box.setDefaultButton(QMessageBox::No);
    return showBox(box, text, note) == QMessageBox::Yes;
}

qsizetype DialogPrompts::choose(QWidget *parent, const ChoiceRequest &request)
{
    QMessageBox box(QMessageBox::Question, request.title, {}, QMessageBox::NoButton, parent);
    QList<QAbstractButton *> buttons;
    for (const QString &label : request.buttons) {
        const bool isLast = buttons.size() == request.buttons.size() - 1;
        buttons.append(box.addButton(label, isLast ? QMessageBox::RejectRole : QMessageBox::AcceptRole));
    }
    box.setDefaultButton(qobject_cast<QPushButton *>(buttons.value(request.defaultIndex)));
    box.setEscapeButton(buttons.constLast());
    showBox(box, request.text);
    return buttons.indexOf(box.clickedButton());
}

Confirmation DialogPrompts::confirm(QWidget *parent, const ConfirmationRequest &request)
{
    QMessageBox box(QMessageBox::Question, request.title, request.text, QMessageBox::NoButton, parent);
    QPushButton *accept = box.addButton(request.acceptLabel, QMessageBox::AcceptRole);
    box.addButton(request.rejectLabel, QMessageBox::RejectRole);
    box.setDefaultButton(accept);
    auto *check = new QCheckBox(request.checkLabel);
    box.setCheckBox(check);
    box.exec();
    return {box.clickedButton() == accept, check->isChecked()};
}

QStringList DialogPrompts::chooseFiles(QWidget *parent, const QString &title, const QString &start)
{
    return QFileDialog::getOpenFileNames(parent, title, start);
}

QString DialogPrompts::chooseFolder(QWidget *parent, const QString &title, const QString &start)
{
    return QFileDialog::getExistingDirectory(parent, title, start, QFileDialog::ShowDirsOnly);
}

QString DialogPrompts::chooseSaveFile(QWidget *parent, const QString &title, const QString &start,
                                      const QString &filter)
{
    return QFileDialog::getSaveFileName(parent, title, start, filter);
}

bool DialogPrompts::run(QDialog &dialog)
{
    return dialog.exec() == QDialog::Accepted;
}

} // namespace Mirrix
