#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QSpinBox>

#include <functional>
#include <vector>

namespace Mirrix {

/// Ties controls to the members of a record, so that one list serves to read the controls, to show a record and to be
/// notified of changes. The controls must live as long as the binding is used.
template <class Record>
class RecordBinding
{
public:
    /// `changed` is called whenever a control that is added later changes.
    explicit RecordBinding(std::function<void()> changed)
        : m_changed(std::move(changed))
    {}

    void add(QAbstractButton *button, bool Record::*member)
    {
        addPair([=](Record &record) { record.*member = button->isChecked(); },
                [=](const Record &record) { button->setChecked(record.*member); });
        QObject::connect(button, &QAbstractButton::toggled, button, m_changed);
    }

    void add(QSpinBox *spin, qint32 Record::*member)
    {
        addPair([=](Record &record) { record.*member = spin->value(); },
                [=](const Record &record) { spin->setValue(record.*member); });
        QObject::connect(spin, &QSpinBox::valueChanged, spin, m_changed);
    }

    /// The member holds the data of the chosen item. A value that no item has leaves the choice as it is.
    void add(QComboBox *combo, qint32 Record::*member)
    {
        addPair([=](Record &record) { record.*member = combo->currentData().toInt(); },
                [=](const Record &record) {
                    if (const int item = combo->findData(record.*member); item >= 0)
                        combo->setCurrentIndex(item);
                });
        QObject::connect(combo, &QComboBox::currentIndexChanged, combo, m_changed);
    }

    void add(QLineEdit *edit, QString Record::*member)
    {
        addPair([=](Record &record) { record.*member = edit->text(); },
                [=](const Record &record) { edit->setText(record.*member); });
        QObject::connect(edit, &QLineEdit::textChanged, edit, m_changed);
    }

    void add(QDateTimeEdit *edit, QDate Record::*member)
    {
        addPair([=](Record &record) { record.*member = edit->date(); },
                [=](const Record &record) { edit->setDate(record.*member); });
        QObject::connect(edit, &QDateTimeEdit::dateChanged, edit, m_changed);
    }

    void add(QDateTimeEdit *edit, QTime Record::*member)
    {
        addPair([=](Record &record) { record.*member = edit->time(); },
                [=](const Record &record) { edit->setTime(record.*member); });
        QObject::connect(edit, &QDateTimeEdit::timeChanged, edit, m_changed);
    }

    /// A widget that has state(), setState() and changed() itself.
    template <class Widget, class State>
    void addPart(Widget *widget, State Record::*member)
    {
        addPair([=](Record &record) { record.*member = widget->state(); },
                [=](const Record &record) { widget->setState(record.*member); });
        QObject::connect(widget, &Widget::changed, widget, m_changed);
    }

    [[nodiscard]] Record read() const
    {
        Record record;
        for (const Pair &pair : m_pairs)
            pair.read(record);
        return record;
    }

    void show(const Record &record) const
    {
        for (const Pair &pair : m_pairs)
            pair.show(record);
    }

private:
    struct Pair
    {
        std::function<void(Record &)> read;
        std::function<void(const Record &)> show;
    };

    void addPair(std::function<void(Record &)> read, std::function<void(const Record &)> show)
    {
        m_pairs.push_back({std::move(read), std::move(show)});
    }

    std::function<void()> m_changed;
    std::vector<Pair> m_pairs;
};

} // namespace Mirrix
