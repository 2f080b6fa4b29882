#include "SnapshotAlbum.h"

#include <AnimatorView.h>
#include <vkd_language.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <exception>
#include <stdexcept>

namespace workbench {

namespace {
constexpr int MaxTextWidth = 500;

/// Processes events until the layouts of word-wrapped labels no longer change.
void settle()
{
    for (int round = 0; round < 4; ++round)
        QApplication::processEvents();
}

bool areViewsComplete(const QWidget* widget)
{
    const auto views = widget->findChildren<AnimatorView*>();
    return std::all_of(views.begin(), views.end(),
                       [](const AnimatorView* view) { return view->isPictureComplete(); });
}

/// Returns a picture of the widget. A view of a large model starts to paint its full image only
/// when it is painted, and completes the image later.
QPixmap completePicture(QWidget* widget)
{
    for (;;) {
        const QPixmap picture = widget->grab();
        if (areViewsComplete(widget))
            return picture;
        while (!areViewsComplete(widget))
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

/// Resizes a dialog to the size that its contents need. Qt limits dialogs to the screen size and
/// wraps the text of message boxes at half the screen width, and the screen of the offscreen
/// platform is small.
void giveRoom(QWidget* dialog)
{
    if (auto text = dialog->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        const int whole = text->fontMetrics().size(0, text->text()).width();
        text->setMinimumWidth(qMin(whole, MaxTextWidth));
        return; // a message box adjusts its own size
    }
    QSize wanted = dialog->sizeHint();
    if (dialog->layout() && dialog->layout()->hasHeightForWidth())
        wanted.setHeight(dialog->layout()->totalHeightForWidth(wanted.width()));
    dialog->resize(wanted.expandedTo(dialog->size()));
}

std::runtime_error failure(const QString& text)
{
    return std::runtime_error(text.toStdString());
}
} // namespace

SnapshotAlbum::SnapshotAlbum(const QString& folder)
    : m_folder(folder)
{
    if (!QDir().mkpath(folder))
        throw failure(QStringLiteral("cannot create the folder %1").arg(folder));
}

void SnapshotAlbum::add(const QString& name, QWidget* widget)
{
    settle();
    QPixmap picture = completePicture(widget);
    if (QWidget* list = QApplication::activePopupWidget()) {
        QPainter painter(&picture);
        painter.drawPixmap(widget->mapFromGlobal(list->mapToGlobal(QPoint())), list->grab());
    }
    const QString language = vkd::desktopLanguage() == vkd::Language::German ? QStringLiteral("de")
                                                                             : QStringLiteral("en");
    const QString file =
        QDir(m_folder).filePath(QStringLiteral("%1.%2.png").arg(name + m_look, language));
    if (!picture.save(file))
        throw failure(QStringLiteral("cannot write %1").arg(file));
    m_files << file;
}

void SnapshotAlbum::addModal(const QString& name, const std::function<void()>& open,
                             const std::function<void(QWidget*)>& work)
{
    std::exception_ptr failed; // exceptions must not pass through the event loop
    bool wasOpened = false;
    QTimer::singleShot(0, qApp, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        wasOpened = true;
        giveRoom(dialog);
        try {
            add(name, dialog);
            if (work)
                work(dialog);
        } catch (...) {
            failed = std::current_exception();
        }
        dialog->close();
    });
    open();
    settle();
    if (failed)
        std::rethrow_exception(failed);
    if (!wasOpened)
        throw failure(QStringLiteral("%1 did not open").arg(name));
}

} // namespace workbench
