#include "VKD_QT4_ComboBox.h"

#include "vkd_qt_xmlpart.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QStylePainter>
#include <QToolTip>
#include <QWheelEvent>

namespace {
constexpr int PictureGap = 4; // pixels that styles leave between icon and text
} // namespace

VKD_QT4_ComboBox::VKD_QT4_ComboBox(QWidget* parent, const char* name)
    : QComboBox(parent)
{
    setObjectName(QLatin1String(name));
    setFocusPolicy(Qt::StrongFocus); // Qt's default also accepts focus on wheel events
}

void VKD_QT4_ComboBox::addItem(const QPixmap& picture, const QString& text, int id)
{
    addItem(QIcon(picture), text, id);
    if (!picture.isNull())
        setIconSize(iconSize().expandedTo(picture.size() / picture.devicePixelRatio()));
}

void VKD_QT4_ComboBox::addEntry(const QString& text, int id)
{
    addItem(text, id);
}

int VKD_QT4_ComboBox::getCurrentId() const
{
    const QVariant id = currentData();
    return id.isValid() ? id.toInt() : NoId;
}

bool VKD_QT4_ComboBox::setCurrentId(int id)
{
    const int entry = findData(id);
    if (entry >= 0)
        setCurrentIndex(entry);
    return entry >= 0;
}

QString VKD_QT4_ComboBox::writeXMLstring() const
{
    if (currentIndex() < 0 || objectName().isEmpty())
        return QString();
    const bool hasId = currentData().isValid();
    return vkd_qt_writeXMLpart(hasId ? QString::number(getCurrentId()) : itemText(currentIndex()),
                               objectName());
}

void VKD_QT4_ComboBox::readXMLstring(const QString& wholeString)
{
    const QString value = vkd_qt_readXMLpart(wholeString, 0, objectName());
    bool isNumber = false;
    const int id = value.toInt(&isNumber);
    if (isNumber && setCurrentId(id))
        return;
    for (int entry = 0; entry < count() && !value.isNull(); ++entry)
        if (!itemData(entry).isValid() && itemText(entry) == value)
            return setCurrentIndex(entry);
}

void VKD_QT4_ComboBox::showPopup()
{
    const int frame = 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this) +
                      style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + frame);
    QComboBox::showPopup();
}

QString VKD_QT4_ComboBox::cutText() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const int picture = itemIcon(currentIndex()).isNull() ? 0 : iconSize().width() + PictureGap;
    const QString text = currentIndex() < 0 ? placeholderText() : currentText();
    return fontMetrics().elidedText(text, Qt::ElideRight, field.width() - 2 - picture);
}

bool VKD_QT4_ComboBox::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || isEditable() || !toolTip().isEmpty() ||
        currentIndex() < 0 || cutText() == currentText())
        return QComboBox::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), currentText(), this);
    return true;
}

void VKD_QT4_ComboBox::paintEvent(QPaintEvent* event)
{
    if (isEditable())
        return QComboBox::paintEvent(event);
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    option.currentText = cutText();
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void VKD_QT4_ComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}
