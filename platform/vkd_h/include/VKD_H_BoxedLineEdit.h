#pragma once

#include "StructBoxedEdit.h"
#include "vkd_h_export.h"

#include <QWidget>

class VKD_H_LineEdit;

/// A label and an input field for a number in one widget. The field is a VKD_H_LineEdit and refuses
/// text as that does; its object name is that of the box with "_edit" behind. Its text is for
/// programs: a comma that is typed or pasted becomes a point, in every language.
class VKD_H_EXPORT VKD_H_BoxedLineEdit : public QWidget
{
    Q_OBJECT

public:
    /// `description` is copied; null is a number without unit and label.
    VKD_H_BoxedLineEdit(QWidget* parent, StructBoxedEdit* description, const char* name);

    /// The text as it was typed or set. While a typed text is refused, or the field stands empty,
    /// the last one that was accepted.
    QString getText() const;
    /// Sets a text that was kept, in the shown unit. It stays as it is, with a comma too. One that
    /// is no acceptable number is shown and marked, and the value from before counts on.
    void setText(const QString& text);

    /// In the base unit of the dimension. While the field stands empty, the last value.
    double getVal() const;
    void setVal(double value);

    VKD_H_LineEdit* edit() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user changed the value.
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
    QString m_set; ///< the text that was set last; null after a value
};
