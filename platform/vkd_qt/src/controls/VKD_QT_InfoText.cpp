#include "VKD_QT_InfoText.h"

#include "VKD_QT_Layouts.h"

#include <vkd_qt_icon_named.h>

#include <QLabel>
#include <QResizeEvent>
#include <QStyle>

VKD_QT_InfoText::VKD_QT_InfoText(bool withSign, const QString& text, QWidget* parent,
                                 const char* name)
    : QWidget(parent)
{
    setObjectName(QLatin1String(name));
    auto note = new QLabel(text, this);
    note->setWordWrap(true);
    auto layout = new VKD_QT_HBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (withSign) {
        const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
        auto sign = new QLabel(this);
        sign->setPixmap(vkd::qt::icon(QStringLiteral(":/icon/program/information")).pixmap(side));
        layout->addWidget(sign, 0, Qt::AlignTop);
    }
    layout->addWidget(note, 1);
}

/// Sets the minimum height, because a grid layout gives too little height to a note that spans
/// several columns.
void VKD_QT_InfoText::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    setMinimumHeight(heightForWidth(event->size().width()));
    layout()->setGeometry(rect()); // rect() may have grown since the event
}
