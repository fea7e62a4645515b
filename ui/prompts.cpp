#include "ui/prompts.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace Mirrix {

void DialogPrompts::inform(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox::information(parent, title, text);
}

void DialogPrompts::warn(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox::warning(parent, title, text);
}

bool DialogPrompts::ask(QWidget *parent, const QString &title, const QString &text)
{
    return QMessageBox::question(parent, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
           QMessageBox::Yes;
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

QString DialogPrompts::chooseFolder(QWidget *parent, const QString &title, const QString &start)
{
    return QFileDialog::getExistingDirectory(parent, title, start, QFileDialog::ShowDirsOnly);
}

bool DialogPrompts::run(QDialog &dialog)
{
    return dialog.exec() == QDialog::Accepted;
}

} // namespace Mirrix
