#pragma once

#include <QString>

class FieldMessage;
class QPainter;
class QRect;
class QWidget;

/// The reason why an input field is marked.
enum class FieldMarkKind {
    None,
    Doubted, ///< the value is accepted, but implausible
    Refused  ///< the text is not a value, or the dialog refuses the value
};

/// The mark of an input field: a coloured frame, a sign at the right end for users who cannot see
/// the colour, and a text, which is added to the accessible description and shown as a message at
/// the field. It follows the field's palette and font.
class FieldMark
{
public:
    explicit FieldMark(QWidget* field);

    /// Sets the mark; an empty text removes it. Returns false if the text did not change.
    bool set(FieldMarkKind kind, const QString& text);
    const QString& text() const { return m_text; }

    /// Returns the width of the sign in pixels, 0 without a mark.
    int width() const;
    /// Paints the frame around the field and the sign into `place`.
    void paint(QPainter* painter, const QRect& place) const;

    void showMessage();
    void hideMessage();

private:
    QWidget* m_field;
    FieldMarkKind m_kind = FieldMarkKind::None;
    QString m_text;
    QString m_about;                   ///< the accessible description without a mark
    FieldMessage* m_message = nullptr; ///< created on first use; child of the field
};
