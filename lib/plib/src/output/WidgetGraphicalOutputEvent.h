#pragma once

#include <QEvent>

/// A page posts this event to itself when its tab is first shown, so that the view command runs
/// after the dialog has been laid out.
class WidgetGraphicalOutputEvent : public QEvent
{
public:
    static constexpr int FirstShow = 1046;

    WidgetGraphicalOutputEvent()
        : QEvent(QEvent::User)
    {
    }
    ~WidgetGraphicalOutputEvent() override;

    int identifier() const { return m_identifier; }

private:
    qint32 m_identifier = FirstShow;
};
