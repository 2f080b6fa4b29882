#include "fields/CommonFields.h"

#include "fields/FieldHint.h"
#include "record/designRecord.h"
#include "record/rowText.h"

#include <VKD_A_BarDiameterCombo.h>
#include <VKD_H_LineEdit.h>
#include <VKD_H_UnitLabel.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_SignalBlocker.h>

#include <QKeyEvent>

#include <algorithm>

namespace plib {

CommonFields::CommonFields(VKD_QT_Dialog* dialog, const DialogFields& fields,
                           const DesignRowList& rows, const std::set<int>& numbers)
    : QObject(dialog)
    , m_rows(rows)
    , m_numbers(numbers)
{
    const CommonRecord common = commonRecord(rows, numbers);
    for (const DialogField& field : fields) {
        const bool isMixed = common.isMixed(field.field);
        m_shown.push_back({field, common.record.*field.field, isMixed, false});
        show(&m_shown.back());
    }
}

void CommonFields::show(Shown* shown)
{
    showValue(shown->field, shown->value);
    if (!shown->isMixed)
        return;
    if (VKD_A_BarDiameterCombo* bar = shown->field.bar) {
        const VKD_QT_SignalBlocker blocker(bar);
        bar->insertItem(0, tr("several"), QVariant()); // so that the user can return to it
        bar->setCurrentIndex(0);
    } else {
        shown->field.edit->installEventFilter(this);
        showPlaceholder(*shown);
    }
    explainMixed(*shown);
}

void CommonFields::explainMixed(const Shown& shown)
{
    const QString values =
        tr("Different values: %1").arg(differentValues(m_rows, m_numbers, shown.field.field));
    if (shown.field.bar)
        new FieldHint(shown.field.bar, values);
    else
        new FieldHint(shown.field.edit,
                      values + QLatin1Char('\n') +
                          tr("An empty field leaves them unchanged. The Delete key in the empty "
                             "field removes the value from all rows."));
}

void CommonFields::showPlaceholder(const Shown& shown)
{
    shown.field.edit->setPlaceholderText(shown.isCleared ? tr("not set") : tr("several"));
}

bool CommonFields::isChanged(const Shown& shown)
{
    if (!shown.isMixed)
        return valueOf(shown.field) != shown.value;
    if (shown.field.bar)
        return shown.field.bar->currentData().isValid();
    return shown.isCleared || valueOf(shown.field) != NotSet;
}

RowPatch CommonFields::changes() const
{
    RowPatch patch;
    for (const Shown& shown : m_shown)
        if (isChanged(shown))
            patch.set(shown.field.field, valueOf(shown.field));
    return patch;
}

std::optional<LimitFault> CommonFields::limitFault() const
{
    return plib::limitFault(m_rows, m_numbers, changes());
}

QString CommonFields::explain(const LimitFault& fault) const
{
    const int code = dimensionCode(fault.pair.minimum);
    const QString unit = VKD_H_UnitLabel::dimString(code, 0);
    const DesignParameterRow& row = m_rows[std::size_t(fault.row)];
    return tr("Row %1: the minimum would be %2 and the maximum %3.")
        .arg(QString::number(fault.row + 1), valueText(row, fault.minimum, code, unit),
             valueText(row, fault.maximum, code, unit));
}

/// Toggles the meaning of an empty field.
bool CommonFields::eventFilter(QObject* watched, QEvent* event)
{
    const auto shown = std::find_if(m_shown.begin(), m_shown.end(), [watched](const Shown& any) {
        return any.field.edit == watched;
    });
    if (event->type() != QEvent::KeyPress || shown == m_shown.end())
        return QObject::eventFilter(watched, event);
    const auto key = static_cast<QKeyEvent*>(event);
    const bool isDelete = key->key() == Qt::Key_Delete || key->key() == Qt::Key_Backspace;
    if (!isDelete || key->isAutoRepeat() || !shown->field.edit->text().isEmpty())
        return QObject::eventFilter(watched, event);
    shown->isCleared = !shown->isCleared;
    showPlaceholder(*shown);
    return true;
}

} // namespace plib
