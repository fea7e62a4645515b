#pragma once

#include <QString>

#include <initializer_list>

class QAbstractButton;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QSpinBox;
class QWidget;

namespace Mirrix {

// Making and laying out the controls of the rules page. Texts are set by the pages when they are translated.

/// A control with an object name, owned by `parent`.
[[nodiscard]] QCheckBox *makeCheck(QWidget *parent, const QString &name);
[[nodiscard]] QSpinBox *makeSpin(QWidget *parent, const QString &name, int least, int most);
[[nodiscard]] QComboBox *makeCombo(QWidget *parent, const QString &name);

/// A label that goes with a control.
[[nodiscard]] QLabel *makeLabelFor(QWidget *control);

/// A secondary remark over several lines.
[[nodiscard]] QLabel *makeHint(QWidget *parent);

/// Appends the heading of a section.
[[nodiscard]] QLabel *addSection(QBoxLayout *layout, QWidget *parent);

/// Appends controls side by side, from the left unless one of them takes all the room.
void addRow(QBoxLayout *layout, std::initializer_list<QWidget *> controls);

/// Lets controls be used only while a button is checked, from now on.
void enableWhile(QAbstractButton *button, std::initializer_list<QWidget *> controls);

/// Names the items 0 to count - 1 of a combo, whose data are these numbers. The choice stays.
void nameItems(QComboBox *combo, int count, QString (*nameOf)(qint32));

/// Lets the wheel scroll the page, not change a value, unless the user has put the focus there.
void guardWheel(QWidget *control);

} // namespace Mirrix
