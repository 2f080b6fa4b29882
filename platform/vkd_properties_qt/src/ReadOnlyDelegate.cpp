#include "ReadOnlyDelegate.h"

#include "QtTableView.h"

namespace {
/// Mixes the text and base colours. In some palettes, the text colour of disabled widgets is too
/// faint for cells that the user still needs to read and copy.
QColor dimmed(const QPalette& palette)
{
    const QColor& text = palette.color(QPalette::Active, QPalette::Text);
    const QColor& base = palette.color(QPalette::Active, QPalette::Base);
    const auto mixed = [](int part, int other) { return (11 * part + 9 * other) / 20; };
    return {mixed(text.red(), base.red()), mixed(text.green(), base.green()),
            mixed(text.blue(), base.blue())};
}
} // namespace

namespace vkd::properties::nextGen {

void ReadOnlyDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const auto view = qobject_cast<const QtTableView*>(option->widget);
    if (!view || !view->is_read_only() ||
        !(index.flags() & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable)))
        return;
    option->state &= ~QStyle::State_Enabled;
    option->palette.setColor(QPalette::Disabled, QPalette::Text, dimmed(option->palette));
}

} // namespace vkd::properties::nextGen
