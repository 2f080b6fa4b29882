#pragma once

#include <QLabel>
#include <QTimer>

/// A short message at an input field that looks like a tool tip. Unlike a tool tip, it stays when
/// the focus changes. It is hidden by the next key or click, before the widgets receive it, and
/// after ten seconds.
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
