#pragma once

#include "StructBoxedEdit.h"
#include "vkd_h_export.h"

#include <QWidget>

class VKD_H_LineEdit;

/// A label and a number field in one widget. The field is a VKD_H_LineEdit and rejects invalid
/// input in the same way. Its object name is the object name of this widget plus "_edit". Its text
/// is intended for programs: a typed or pasted comma is converted to a point in every language.
class VKD_H_EXPORT VKD_H_BoxedLineEdit : public QWidget
{
    Q_OBJECT

public:
    /// `description` is copied. A null pointer describes a number without a unit or label.
    VKD_H_BoxedLineEdit(QWidget* parent, StructBoxedEdit* description, const char* name);

    /// Returns the text exactly as it was typed or set. If the typed text is rejected or the field
    /// is empty, returns the last accepted text.
    QString getText() const;
    /// Shows saved text, which is in the displayed unit. The text is not modified, even if it
    /// contains a comma. If the text is not an acceptable number, the field shows and marks it, and
    /// keeps the previous value.
    void setText(const QString& text);

    /// Sets the value in the base unit of the dimension.
    void setVal(double value);

    VKD_H_LineEdit* edit() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Emitted when the user has changed the value.
    void valueChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    void arrange();
    bool standsForDefault() const;
    void fillEmptyField();
    void showDefault();

    StructBoxedEdit m_description;
    VKD_H_LineEdit* m_edit;
    QString m_set; ///< last text from setText(), null after setVal()
};
