#pragma once

#include "StructLineEdit.h"
#include "vkd_h_export.h"
#include "vkd_h_units.h"

#include <VKD_QT_InputField.h>

#include <QLineEdit>

#include <memory>

class FieldMark;
class QComboBox;

/// An input field for a number of a dimension, in base units for its callers and in the shown unit
/// for its users; also as the line edit of an editable combo box with preset texts. A value that is
/// only shown comes back bit for bit, however few digits stand there. Text that is no acceptable
/// number stays, marked and with a message at the field, until it is mended or Escape brings the
/// last value's text back; meanwhile that value is the one that counts, and no dialog is accepted
/// (VKD_QT_Dialog.h). A value that can hardly be meant is marked in another colour, with a
/// sentence, and counts. Users of this class link vkd_qt.
class VKD_H_EXPORT VKD_H_LineEdit : public QLineEdit, public VKD_QT_InputField
{
    Q_OBJECT
    Q_INTERFACES(VKD_QT_InputField)

public:
    /// `description` is copied; null is a number without unit. `text` names the quantity, for the
    /// tool tip and for screen readers; the tool tip also holds `secondText`, a further
    /// explanation. `showsUnit` shows the unit in the field.
    VKD_H_LineEdit(QWidget* parent, StructLineEdit* description, const char* objectName,
                   const QString& text, const QString& secondText, bool showsUnit);
    ~VKD_H_LineEdit() override;

    /// Shows a value in base units, any that is. As the line edit of a combo box this is to be
    /// called after the entries are in, because the combo box puts its current entry into the
    /// field.
    void setVal(double value);
    /// The value of the text as it stands, while it is typed too. If the text is refused: the value
    /// from before it was typed. -99999.0, or what the description says, for an empty field.
    double getVal() const;

    /// The value that counts while the text is refused, and the text that Escape brings back.
    double keptVal() const { return m_value; }
    QString keptText() const { return m_shown; }

    QString refusal() const override;
    void showRefusal() override;
    /// Why the value can hardly be meant; empty without a doubt, and for a refused text.
    QString doubt() const;
    /// In place of the range of the dimension.
    void setPlausibleRange(const VkdPlausibleRange& range);

    /// Marks the field like a refused one, for a reason that its dialog knows, until its text
    /// changes. The field shows the reason when it gets the focus, also from a message box.
    void setFault(const QString& reason);

    /// Room for a number of nine characters and what stands around it.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    void clearFault();

Q_SIGNALS:
    /// getVal() gives another value than before, because the user typed or chose a preset text.
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
    double m_value; ///< the value kept, which the text m_shown stands for, exactly
    double m_told;  ///< the value of the last valueChanged()
    QString m_shown;
    QString m_fault;
    VkdPlausibleRange m_plausible;
    std::unique_ptr<FieldMark> m_mark;
    bool m_isTyped = false;
    bool m_wasIn = false; ///< the focus went to a list or another window, and may come back
    bool m_selectsAll = false;
};
