#pragma once

#include <QObject>

class QWidget;

namespace workbench {

/// Explains why a widget is disabled. The explanation is the tool tip of the disabled widget and is
/// shown immediately if the user clicks the widget or drags in it.
class DisabledHint : public QObject
{
    Q_OBJECT

public:
    /// The widget owns the object.
    DisabledHint(QWidget* widget, const QString& hint);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setToolTip();

    QWidget* m_widget;
    const QString m_hint;
    const QString m_toolTip; ///< of the enabled widget
};

} // namespace workbench
