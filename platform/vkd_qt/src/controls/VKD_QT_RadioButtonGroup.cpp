#include "VKD_QT_RadioButtonGroup.h"

#include "VKD_QT_Layouts.h"

#include <QButtonGroup>
#include <QChildEvent>
#include <QKeyEvent>
#include <QRadioButton>

#include <algorithm>
#include <utility>

namespace {
/// Returns whether a key inserts text, deletes text or moves the cursor in a widget.
bool isInput(int key)
{
    constexpr int Passing[] = {Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return,
                               Qt::Key_Enter};
    for (int passing : Passing)
        if (key == passing)
            return false;
    return key < Qt::Key_Shift; // modifier, function and special keys have greater codes
}

bool isUse(const QWidget& widget, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress: return widget.isEnabled();
    case QEvent::KeyPress: return isInput(static_cast<QKeyEvent*>(event)->key());
    case QEvent::InputMethod: return true;
    default: return false;
    }
}

/// Schedules the deletion of a widget, because one of its own events may have caused the deletion.
void dismiss(QWidget* widget)
{
    if (!widget)
        return;
    widget->setObjectName(QString()); // its replacement may have the same name
    widget->hide();
    widget->deleteLater();
}
} // namespace

VKD_QT_RadioButtonGroup::VKD_QT_RadioButtonGroup(const QString& title,
                                                 const std::vector<StructRadioButtonGrup>& items,
                                                 QWidget* parent, const char* name,
                                                 Qt::Orientation orientation, int count)
    : VKD_QT_GroupBox(title, parent, name)
    , m_orientation(orientation)
    , m_count(count)
    , m_buttons(new QButtonGroup(this))
    , m_grid(new VKD_QT_GridLayout(this))
{
    connect(m_buttons, &QButtonGroup::idClicked, this, &VKD_QT_RadioButtonGroup::buttWasClicked);
    connect(m_buttons, &QButtonGroup::idToggled, this, &VKD_QT_RadioButtonGroup::setTabStop);
    init(items);
}

void VKD_QT_RadioButtonGroup::init(const std::vector<StructRadioButtonGrup>& items)
{
    m_items = items;
    while (m_radios.size() > items.size())
        removeLastButton();
    while (m_radios.size() < items.size())
        addButton();
    for (int entry = 0; isEntry(entry); ++entry)
        describe(entry);
    arrange();
}

void VKD_QT_RadioButtonGroup::setWidget(int entry, QWidget* widget)
{
    if (!isEntry(entry) || m_items[entry].flag != StructRadioButtonGrup::WithWidget ||
        m_widgets[entry] == widget)
        return;
    const QPointer<QWidget> before = m_widgets[entry];
    m_widgets[entry] = widget;
    if (widget)
        watch(widget);
    describe(entry);
    arrange();
    dismiss(before);
}

int VKD_QT_RadioButtonGroup::selectedButton() const
{
    return m_buttons->checkedId();
}

void VKD_QT_RadioButtonGroup::setButton(int entry)
{
    if (isEntry(entry))
        m_radios[entry]->setChecked(true);
}

QRadioButton* VKD_QT_RadioButtonGroup::getRadioButton(int entry) const
{
    return isEntry(entry) ? m_radios[entry] : nullptr;
}

VKD_QT_GroupBox* VKD_QT_RadioButtonGroup::box()
{
    return this;
}

bool VKD_QT_RadioButtonGroup::eventFilter(QObject* watched, QEvent* event)
{
    auto widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::EnabledChange)
        setTabStop();
    if (widget && event->type() == QEvent::ChildAdded)
        static_cast<QChildEvent*>(event)->child()->installEventFilter(this);
    if (!widget || !isUse(*widget, event))
        return VKD_QT_GroupBox::eventFilter(watched, event);
    for (int entry = 0; isEntry(entry); ++entry) {
        const QPointer<QWidget> own = m_widgets[entry];
        if (!own || (own != widget && !own->isAncestorOf(widget)) || entry == selectedButton())
            continue;
        const QPointer<QWidget> used = widget;
        m_radios[entry]->click(); // a connected slot may remove the widget
        return !used || std::find(m_widgets.begin(), m_widgets.end(), own) == m_widgets.end();
    }
    return false;
}

bool VKD_QT_RadioButtonGroup::isEntry(int entry) const
{
    return entry >= 0 && entry < int(m_radios.size());
}

void VKD_QT_RadioButtonGroup::addButton()
{
    const int entry = int(m_radios.size());
    auto radio = new QRadioButton(this);
    radio->setObjectName(objectName() + QLatin1Char('_') + QString::number(entry));
    radio->installEventFilter(this);
    m_buttons->addButton(radio, entry);
    m_radios.push_back(radio);
    m_widgets.emplace_back();
}

void VKD_QT_RadioButtonGroup::removeLastButton()
{
    QRadioButton* radio = m_radios.back();
    const QPointer<QWidget> widget = m_widgets.back();
    m_radios.pop_back();
    m_widgets.pop_back();
    m_buttons->removeButton(radio);
    dismiss(radio);
    dismiss(widget);
}

void VKD_QT_RadioButtonGroup::describe(int entry)
{
    const StructRadioButtonGrup& item = m_items[entry];
    QRadioButton* radio = m_radios[entry];
    radio->setText(item.text);
    radio->setToolTip(item.toolTip);
    radio->setWhatsThis(item.whatsThis);
    radio->setAccessibleName(item.text.isEmpty() ? item.toolTip : QString());
    if (item.flag != StructRadioButtonGrup::WithWidget)
        dismiss(std::exchange(m_widgets[entry], nullptr));
    QWidget* widget = m_widgets[entry];
    while (widget && widget->focusProxy())
        widget = widget->focusProxy();
    if (widget && widget->accessibleName().isEmpty())
        widget->setAccessibleName(QString(item.text).remove(QLatin1Char('&')));
}

void VKD_QT_RadioButtonGroup::arrange()
{
    for (int column = 0; column < m_grid->columnCount(); ++column)
        m_grid->setColumnStretch(column, 0);
    for (int row = 0; row < m_grid->rowCount(); ++row)
        m_grid->setRowStretch(row, 0);
    QPoint foot;
    for (int entry = 0; isEntry(entry); ++entry) {
        const QPoint place = placeOf(entry);
        put(m_radios[entry], place, m_widgets[entry] ? 1 : 2); // a long label spans both columns
        put(m_widgets[entry], place + QPoint(1, 0), 1);
        foot = {qMax(foot.x(), place.x() + 2), qMax(foot.y(), place.y() + 1)};
    }
    // The remaining space is on the right and at the bottom.
    m_grid->setColumnStretch(foot.x(), 1);
    m_grid->setRowStretch(foot.y(), 1);
    chainTabs();
}

QPoint VKD_QT_RadioButtonGroup::placeOf(int entry) const
{
    const int along = m_count > 0 ? entry % m_count : entry;
    const int across = m_count > 0 ? entry / m_count : 0;
    return m_orientation == Qt::Horizontal ? QPoint(2 * along, across) : QPoint(2 * across, along);
}

void VKD_QT_RadioButtonGroup::put(QWidget* widget, const QPoint& place, int columns)
{
    if (!widget)
        return;
    m_grid->removeWidget(widget);
    m_grid->addWidget(widget, place.y(), place.x(), 1, columns);
}

void VKD_QT_RadioButtonGroup::chainTabs()
{
    QWidget* last = nullptr;
    for (int entry = 0; isEntry(entry); ++entry)
        for (QWidget* next : {static_cast<QWidget*>(m_radios[entry]), m_widgets[entry].data()}) {
            if (last && next)
                setTabOrder(last, next);
            last = next ? next : last;
        }
    setTabStop();
}

/// Lets the Tab key stop only at the checked button. Qt does this only when a button receives
/// focus, so the first Tab would move to button 0.
void VKD_QT_RadioButtonGroup::setTabStop()
{
    const QAbstractButton* chosen = m_buttons->checkedButton();
    for (QRadioButton* radio : m_radios) {
        const bool stops = !chosen || !chosen->isEnabled() || radio == chosen;
        radio->setFocusPolicy(stops ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void VKD_QT_RadioButtonGroup::watch(QWidget* widget)
{
    widget->installEventFilter(this);
    const QList<QWidget*> parts = widget->findChildren<QWidget*>();
    for (QWidget* part : parts)
        part->installEventFilter(this);
}
