#pragma once

#include <QLabel>
#include <QTimer>

/// A short message in the style of a tooltip next to an input field. Unlike a tooltip, it remains
/// visible when the focus changes. The next key press or mouse click hides it, before the widgets
/// receive that event. Otherwise it is hidden after ten seconds.
class FieldMessage : public QLabel
{
    Q_OBJECT

public:
    /// Creates a hidden message; the field becomes its parent.
    explicit FieldMessage(QWidget* field);

    /// Shows the text below the field, or above it at the bottom of the screen.
    void showText(const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTimer m_end;
};
