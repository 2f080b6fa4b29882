#pragma once

#include "StructBoxedEdit.h"
#include "vkd_h_export.h"

#include <QWidget>

class VKD_H_LineEdit;

/// A label and an input field for a number in one widget. The field is a VKD_H_LineEdit and treats
/// text as that does; its object name is that of the box with "_edit" behind.
class VKD_H_EXPORT VKD_H_BoxedLineEdit : public QWidget
{
    Q_OBJECT

public:
    /// `description` is copied; null is a number without unit and label.
    VKD_H_BoxedLineEdit(QWidget* parent, StructBoxedEdit* description, const char* name);

    /// The text as it was typed or set, although the field writes its number in its own format when
    /// it is left. Of an emptied field that stands for a default, the default.
    QString getText() const;
    /// Sets a text as if it were typed, in the shown unit. One that is no acceptable number is
    /// shown and marked, and the value from before counts on.
    void setText(const QString& text);

    /// In the base unit of the dimension.
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
    bool counts(const QString& text) const;
    bool standsForDefault() const;
    void fillEmptyField();
    void showDefault();

    StructBoxedEdit m_description;
    VKD_H_LineEdit* m_edit;
    QString m_text; ///< as typed or set last; null if what stands in the field counts
};
