#pragma once

#include "StructLineEdit.h"
#include "vkd_h_export.h"
#include "vkd_h_units.h"

#include <VKD_QT_InputField.h>

#include <QLineEdit>

#include <memory>

class FieldMark;
class QComboBox;

/// A field for a number with a dimension. Callers set and get values in base units; users see and
/// type them in the displayed unit. The field can also be the line edit of an editable combo box
/// with preset values. A value that the user does not edit is returned unchanged, even if the field
/// shows fewer digits.
///
/// Text that is not an acceptable number remains in the field, with a mark and a message, until the
/// user corrects it or presses Escape to restore the last accepted text. Until then, the field
/// keeps the last accepted value, and the dialog cannot be accepted (VKD_QT_Dialog.h). An
/// implausible value is accepted, but is marked in another colour and explained in a message. Users
/// of this class must link against vkd_qt.
class VKD_H_EXPORT VKD_H_LineEdit : public QLineEdit, public VKD_QT_InputField
{
    Q_OBJECT
    Q_INTERFACES(VKD_QT_InputField)

public:
    /// `description` is copied; a null pointer describes a number without a unit. `text` is the
    /// name of the quantity for the tool tip and for screen readers; `secondText` is an additional
    /// explanation in the tool tip. If `showsUnit` is true, the field shows the unit.
    VKD_H_LineEdit(QWidget* parent, StructLineEdit* description, const char* objectName,
                   const QString& text, const QString& secondText, bool showsUnit);
    ~VKD_H_LineEdit() override;

    /// Sets any value, given in base units. In a combo box, call this after adding the entries,
    /// because the combo box copies its current entry into the field.
    void setVal(double value);
    /// Returns the value of the current text, even while the user is typing. If the text is
    /// rejected, returns the last accepted value. If the field is empty, returns the description's
    /// "not set" value (-99999.0 by default).
    double getVal() const;

    /// Returns the last accepted text, which Escape restores.
    QString acceptedText() const { return m_shown; }

    QString refusal() const override;
    void showRefusal() override;
    /// Returns the reason why the value is implausible, or an empty string if the value is
    /// plausible or the text is rejected.
    QString doubt() const;
    /// Replaces the plausible range of the dimension.
    void setPlausibleRange(const VkdPlausibleRange& range);

    /// Marks the text as rejected for a reason that only the dialog can determine. The mark remains
    /// until the text changes. The field shows the reason when it receives focus, even after a
    /// message box.
    void setFault(const QString& reason);

    /// Returns a size that fits nine characters, the prefix, the unit and the mark.
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
    double m_value; ///< last accepted value; m_shown contains its text
    double m_told;  ///< value when valueChanged() was last emitted
    QString m_shown;
    QString m_fault;
    VkdPlausibleRange m_plausible;
    std::unique_ptr<FieldMark> m_mark;
    bool m_isTyped = false;
    bool m_wasIn = false; ///< focus is in a popup or another window and may return
    bool m_selectsAll = false;
};
