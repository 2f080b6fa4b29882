#include "HelpBrowser.h"

#include <QLoggingCategory>
#include <QScrollBar>
#include <QWheelEvent>

namespace {
Q_LOGGING_CATEGORY(lcHelpPages, "vkd.help")

constexpr int SmallestZoom = -4;
constexpr int LargestZoom = 20;
constexpr int WheelStep = 120;

/// The style does not set colours, because the text document's default border is a grey that is
/// visible on light and dark backgrounds.
const QString PageStyle = QStringLiteral("table { border-collapse: collapse; margin-top: 6px; "
                                         "margin-bottom: 6px }"
                                         "td, th { padding: 4px }"
                                         "th { text-align: left }"
                                         "h2 { margin-top: 16px }"
                                         "li { margin-bottom: 3px }");
} // namespace

HelpBrowser::HelpBrowser(QWidget* parent)
    : QTextBrowser(parent)
{
    setOpenLinks(false);
    document()->setDocumentMargin(14);
    document()->setDefaultStyleSheet(PageStyle);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::followLink);
    connect(this, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& address) { m_shown = address; });
}

int HelpBrowser::topic() const
{
    return m_book.find(m_shown);
}

void HelpBrowser::open(const HelpBook& book, int number)
{
    const bool isOther = topic() < 0 || book.find(m_shown) < 0;
    m_book = book;
    if (m_shown == book.address(number))
        readAgain();
    else
        openTopic(number);
    if (isOther)
        clearHistory();
}

void HelpBrowser::openTopic(int number)
{
    setSource(m_book.address(number));
}

bool HelpBrowser::findNext(const QString& text, QTextDocument::FindFlags flags)
{
    QTextCursor hit = document()->find(text, textCursor(), flags);
    if (hit.isNull()) {
        QTextCursor end(document());
        if (flags & QTextDocument::FindBackward)
            end.movePosition(QTextCursor::End);
        hit = document()->find(text, end, flags);
    }
    if (hit.isNull())
        return false;
    setTextCursor(hit);
    return true;
}

bool HelpBrowser::findWhileTyping(const QString& text)
{
    unmark();
    return findNext(text);
}

void HelpBrowser::unmark()
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(cursor.selectionStart());
    setTextCursor(cursor);
}

void HelpBrowser::zoomBy(int points)
{
    const int zoom = qBound(SmallestZoom, m_zoom + points, LargestZoom);
    zoomIn(zoom - m_zoom);
    m_zoom = zoom;
}

void HelpBrowser::resetZoom()
{
    zoomBy(-m_zoom);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& address)
{
    const QByteArray bytes = m_book.file(address);
    if (type == QTextDocument::ImageResource)
        return bytes;
    return QString::fromUtf8(bytes); // as a string, because Qt would guess the codec of bytes
}

void HelpBrowser::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    m_wheel += event->angleDelta().y();
    zoomBy(m_wheel / WheelStep);
    m_wheel %= WheelStep;
    event->accept();
}

void HelpBrowser::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    // The document stores the link colour when a page is loaded.
    if (event->type() == QEvent::PaletteChange && topic() >= 0)
        readAgain();
}

void HelpBrowser::followLink(const QUrl& address)
{
    if (m_book.find(address) >= 0)
        setSource(address);
    else
        qCWarning(lcHelpPages, "the help has no page for the link %s",
                  qUtf8Printable(address.toString()));
}

void HelpBrowser::readAgain()
{
    const int place = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(place);
}
