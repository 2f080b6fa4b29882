#pragma once

#include <QString>

class FieldMessage;
class QPainter;
class QRect;
class QWidget;

/// Why an input field is marked.
enum class FieldMarkKind {
    None,
    Doubted, ///< the value counts, but can hardly be meant
    Refused  ///< the text is no value, or a dialog does not take it
};

/// The mark of an input field: a frame, a sign at the right end for those who do not see its
/// colour, and a text, which stands in the accessible description and in a message at the field.
/// It follows the field's palette and font.
class FieldMark
{
public:
    explicit FieldMark(QWidget* field);

    /// False if the field is marked so already. An empty text is no mark.
    bool set(FieldMarkKind kind, const QString& text);
    const QString& text() const { return m_text; }

    /// The width of the sign in pixels, 0 without a mark.
    int width() const;
    /// Paints the frame, and the sign into `place`.
    void paint(QPainter* painter, const QRect& place) const;

    void showMessage();
    void hideMessage();

private:
    QWidget* m_field;
    FieldMarkKind m_kind = FieldMarkKind::None;
    QString m_text;
    QString m_about;                   ///< the accessible description without a mark
    FieldMessage* m_message = nullptr; ///< made when it is first needed; belongs to the field
};
