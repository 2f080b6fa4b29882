#pragma once

#include "StructLineEdit.h"
#include "vkd_h_export.h"
#include "vkd_h_units.h"

#include <VKD_QT_InputField.h>

#include <QLineEdit>

#include <memory>

class FieldMark;
class QComboBox;

/// A field for a number with a dimension. Callers use base units, users the shown unit. It can also
/// be the line edit of an editable combo box with preset texts. A value that the user does not edit
/// is returned bit for bit, even if the field shows fewer digits.
///
/// Text that is not an acceptable number remains in the field, marked and with a message, until the
/// user corrects it or presses Escape to restore the text of the last value. Meanwhile that value
/// is the current one, and no dialog can be accepted (VKD_QT_Dialog.h). An implausible value is
/// marked in another colour with a message, but is accepted. Users of this class must link vkd_qt.
class VKD_H_EXPORT VKD_H_LineEdit : public QLineEdit, public VKD_QT_InputField
{
    Q_OBJECT
    Q_INTERFACES(VKD_QT_InputField)

public:
    /// `description` is copied; null describes a number without unit. `text` is the name of the
    /// quantity for the tool tip and for screen readers; `secondText` is a further explanation in
    /// the tool tip. `showsUnit` shows the unit in the field.
    VKD_H_LineEdit(QWidget* parent, StructLineEdit* description, const char* objectName,
                   const QString& text, const QString& secondText, bool showsUnit);
    ~VKD_H_LineEdit() override;

    /// Shows any value, given in base units. In a combo box, call this after the entries are added,
    /// because the combo box copies its current entry into the field.
    void setVal(double value);
    /// Returns the value of the current text, even during typing. For a refused text, returns the
    /// last accepted value; for an empty field, the description's "not set" (-99999.0 by default).
    double getVal() const;

    /// Returns the last accepted text, which Escape restores.
    QString acceptedText() const { return m_shown; }

    QString refusal() const override;
    void showRefusal() override;
    /// Returns why the value is implausible; empty for a plausible value and for a refused text.
    QString doubt() const;
    /// Replaces the plausible range of the dimension.
    void setPlausibleRange(const VkdPlausibleRange& range);

    /// Marks the field like a refused one for a reason that only the dialog knows, until its text
    /// changes. The field shows the reason when it gets the focus, even after a message box.
    void setFault(const QString& reason);

    /// Returns a size for nine characters, prefix, unit and mark.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    void clearFault();

Q_SIGNALS:
    /// Emitted when getVal() changes because the user typed a value or chose a preset.
    void valueChanged();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void takeText(const QString& text);
    void keepText();
    bool restoreText();
    void dropInlineCompletion();
    void setTips();
    void updateMark(bool mayGrow = false);
    void setMargins();
    QComboBox* comboBox() const;
    void followPresets();
    bool stepToPreset(int key);

    StructLineEdit m_description;
    QString m_name;
    QString m_explanation;
    bool m_showsUnit;
    double m_value; ///< last accepted value; m_shown is its text
    double m_told;  ///< value of the last valueChanged()
    QString m_shown;
    QString m_fault;
    VkdPlausibleRange m_plausible;
    std::unique_ptr<FieldMark> m_mark;
    bool m_isTyped = false;
    bool m_wasIn = false; ///< the focus is in a popup or another window and may return
    bool m_selectsAll = false;
};
