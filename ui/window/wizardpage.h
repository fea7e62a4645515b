#pragma once

#include <QWidget>

class QLabel;

namespace Mirrix {

/// A page of the wizard under its title and hint.
class WizardPage : public QWidget
{
public:
    explicit WizardPage(QWidget *content, QWidget *parent = nullptr);

    /// Without a hint its line is left out.
    void setTexts(const QString &title, const QString &hint = {});

private:
    QLabel *m_title;
    QLabel *m_hint;
};

} // namespace Mirrix
