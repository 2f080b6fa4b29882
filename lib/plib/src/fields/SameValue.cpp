#include "fields/SameValue.h"

#include "dialogs/RowStrip.h"

#include <VKD_A_BarDiameterCombo.h>
#include <VKD_H_LineEdit.h>

#include <QShortcut>
#include <QToolButton>

#include <algorithm>

namespace plib {

namespace {
/// Returns whether this widget edits the field. If the line edit is part of a combo box, the combo
/// box has the focus.
bool isEditedBy(const DialogField& field, const QWidget* widget)
{
    if (field.bar)
        return field.bar == widget;
    return field.edit == widget || (widget && field.edit->focusProxy() == widget);
}

bool isEmpty(const DialogField& field)
{
    return field.bar ? !field.bar->currentData().isValid() : field.edit->text().isEmpty();
}
} // namespace

SameValue::SameValue(const RecordDialog& dialog, RowStrip* strip, bool areSeveralRows)
    : QObject(dialog.window)
    , m_dialog(dialog)
    , m_strip(strip)
    , m_areSeveralRows(areSeveralRows)
{
    const QKeySequence key(int(Qt::CTRL) | Qt::Key_Return);
    auto button = new QToolButton(strip);
    button->setObjectName(QStringLiteral("sameValue"));
    button->setFocusPolicy(Qt::NoFocus); // the focus must stay in the field to be copied
    button->setText(tr("Same Everywhere"));
    button->setToolTip(tr("Uses the value of the current field on both sides, and for bars, limits "
                          "and crack control in all layers (%1)")
                           .arg(key.toString(QKeySequence::NativeText)));
    strip->addButton(button);
    connect(button, &QToolButton::clicked, this, &SameValue::copy);
    for (const QKeySequence& keys : {key, QKeySequence(int(Qt::CTRL) | Qt::Key_Enter)})
        connect(new QShortcut(keys, dialog.window), &QShortcut::activated, this, &SameValue::copy);
}

void SameValue::copy()
{
    const DialogFields fields = m_dialog.fields();
    const QWidget* focused = m_dialog.window->focusWidget();
    const auto from = std::find_if(fields.begin(), fields.end(), [focused](const auto& field) {
        return isEditedBy(field, focused);
    });
    if (from == fields.end())
        m_strip->showMessage(tr("Choose a field first."));
    else if (from->edit && !from->edit->refusal().isEmpty())
        from->edit->showRefusal();
    else if (m_areSeveralRows && isEmpty(*from))
        m_strip->showMessage(tr("The field has no value."));
    else
        m_strip->showMessage(copied(*from));
}

/// Copies the value and returns a message about the result.
QString SameValue::copied(const DialogField& from) const
{
    int count = 0;
    for (const DialogField& field : m_dialog.fields())
        if (field.field != from.field && isSameKind(field.field, from.field)) {
            showValue(field, valueOf(from));
            ++count;
        }
    if (count == 0)
        return tr("There is no other field of this kind.");
    return count == 1 ? tr("Set in the other field.") : tr("Set in %1 other fields.").arg(count);
}

} // namespace plib
