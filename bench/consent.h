#pragma once

#include "ui/window/prompts.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>
#include <QListView>

#include <cstdio>

/// Says yes to everything.
class Consent : public Mirrix::Prompts
{
public:
    explicit Consent(const QString &folder)
        : m_folder(folder)
    {}

    int exportFormat = 0; ///< the number of the next export's form

    void inform(QWidget *, const QString &, const QString &, const QString &) override {}
    bool informWithAction(QWidget *, const QString &, const QString &, const QString &, const QString &) override
    {
        return false;
    }
    void warn(QWidget *, const QString &, const QString &text) override { complain(text); }
    void fail(QWidget *, const QString &, const QString &text) override { complain(text); }
    bool ask(QWidget *, const QString &, const QString &, const QString &) override { return true; }
    qsizetype choose(QWidget *, const Mirrix::ChoiceRequest &) override { return 0; }
    Mirrix::Confirmation confirm(QWidget *, const Mirrix::ConfirmationRequest &) override { return {true, false}; }
    QStringList chooseFiles(QWidget *, const QString &, const QString &) override { return {}; }
    QString chooseFolder(QWidget *, const QString &, const QString &) override { return {}; }
    QString chooseSaveFile(QWidget *, const QString &, const QString &, const QString &) override { return {}; }

    bool run(QDialog &dialog) override
    {
        if (auto *format = dialog.findChild<QAbstractButton *>(QStringLiteral("ExportFormat%1").arg(exportFormat))) {
            format->click();
            dialog.findChild<QLineEdit *>(QStringLiteral("OutputPathEdit"))
                ->setText(m_folder + QStringLiteral("/export%1").arg(exportFormat));
        } else if (auto *list = dialog.findChild<QListView *>(QStringLiteral("RestoreList"))) {
            dialog.show();
            list->selectAll();
        }
        return true;
    }

private:
    static void complain(const QString &text) { std::printf("  %s\n", qPrintable(text.left(300))); }

    QString m_folder;
};
