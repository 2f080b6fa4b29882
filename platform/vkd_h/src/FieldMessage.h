#pragma once

#include <QLabel>
#include <QTimer>

/// A short message at an input field, in the look of a tool tip. Unlike one it outlives the change
/// of focus that it is about. It goes with the next key or click, before that takes effect, and
/// after a while by itself.
class FieldMessage : public QLabel
{
    Q_OBJECT

public:
    /// The field becomes the parent.
    explicit FieldMessage(QWidget* field);

    /// Shows the text below the field, or above it at the foot of the screen.
    void showText(const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTimer m_end;
};
