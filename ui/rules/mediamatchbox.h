#pragma once

#include <QGroupBox>

class QCheckBox;
class QComboBox;
class QLabel;

namespace Mirrix {

/// How audio or video files are compared: the method with a note, and the duration with a tolerance. The page gives the
/// title, the note and the names of the methods.
class MediaMatchBox : public QGroupBox
{
    Q_OBJECT

public:
    /// `kind` begins the controls' object names.
    explicit MediaMatchBox(const QString &kind, QWidget *parent = nullptr);

    /// Appends what edits how far durations may differ, a child of this box. To be called once.
    void addTolerance(QWidget *tolerance);

    [[nodiscard]] QComboBox *method() const { return m_method; }
    [[nodiscard]] QCheckBox *matchDuration() const { return m_matchDuration; }
    [[nodiscard]] QLabel *note() const { return m_note; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QComboBox *m_method;
    QLabel *m_methodLabel;
    QLabel *m_note;
    QLabel *m_durationTitle = nullptr;
    QCheckBox *m_matchDuration;
    QLabel *m_toleranceLabel;
};

} // namespace Mirrix
