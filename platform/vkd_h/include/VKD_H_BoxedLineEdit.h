#pragma once

#include "StructBoxedEdit.h"
#include "vkd_h_export.h"

#include <QWidget>

class VKD_H_LineEdit;

/// A label and a number field in one widget. The field is a VKD_H_LineEdit and refuses texts in the
/// same way; its object name is that of the box plus "_edit". Its text is meant for programs: a
/// typed or pasted comma becomes a point in every language.
class VKD_H_EXPORT VKD_H_BoxedLineEdit : public QWidget
{
    Q_OBJECT

public:
    /// `description` is copied. Null describes a number without unit and label.
    VKD_H_BoxedLineEdit(QWidget* parent, StructBoxedEdit* description, const char* name);

    /// Returns the text as it was typed or set. If the typed text is refused or the field is empty,
    /// returns the last accepted text.
    QString getText() const;
    /// Sets a saved text, in the shown unit and without any change, even with a comma. If it is not
    /// an acceptable number, the field shows and marks it, and the previous value remains.
    void setText(const QString& text);

    /// Sets the value in the base unit of the dimension.
    void setVal(double value);

    VKD_H_LineEdit* edit() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Emitted when the user changed the value.
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
