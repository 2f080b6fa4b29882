#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <VKD_H_SecondaryGroupDialog.h>
#include <VKD_H_TableWidget.h>
#include <VKD_H_TableWidgetBox.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace testsupport;

namespace {
/// Returns all texts of a window, except list entries.
QStringList texts(const QWidget& window)
{
    QStringList found{window.windowTitle()};
    for (const auto* button : window.findChildren<QAbstractButton*>())
        found << button->text();
    for (const auto* label : window.findChildren<QLabel*>())
        found << label->text();
    for (const auto* field : window.findChildren<QLineEdit*>())
        found << field->placeholderText();
    for (const auto* view : window.findChildren<QAbstractItemView*>())
        for (int column = 0; column < view->model()->columnCount(); ++column)
            found << view->model()->headerData(column, Qt::Horizontal).toString();
    return found;
}
} // namespace

/// A window that was open during a language change shows the same text as a window opened later.
class tst_languageChange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setLanguage(English); }
    void cleanup() { setLanguage(English); }

    void groupDialog()
    {
        VKD_H_SecondaryGroupDialog open(nullptr, {0x20574f4c}, {});
        const QStringList before = texts(open);
        const int width = open.findChild<QLineEdit*>(QStringLiteral("input"))->minimumWidth();
        int headersChanged = 0;
        connect(open.findChild<QAbstractItemView*>(QStringLiteral("groups"))->model(),
                &QAbstractItemModel::headerDataChanged, &open, [&] { ++headersChanged; });
        setLanguage(German);
        const VKD_H_SecondaryGroupDialog later(nullptr, {0x20574f4c}, {});
        QCOMPARE(texts(open), texts(later));
        QVERIFY(texts(open) != before);
        QVERIFY(open.findChild<QLineEdit*>(QStringLiteral("input"))->minimumWidth() != width);
        QCOMPARE(headersChanged, 1);
    }

    void tableBox()
    {
        VKD_H_TableWidgetBox box(new VKD_H_TableWidget(1, 1), QString(), nullptr, "box");
        box.createDefaultLayout(true, false);
        box.addButton(VKD_H_TableWidgetBox::New, false);
        box.addButton(VKD_H_TableWidgetBox::Delete, true);
        setLanguage(German);
        QCOMPARE(box.getButton(VKD_H_TableWidgetBox::New)->text(), QStringLiteral("Neu"));
        QCOMPARE(box.getButton(VKD_H_TableWidgetBox::Delete)->text(), QStringLiteral("Löschen"));
    }
};

PLIB_WIDGET_TEST_MAIN(tst_languageChange)
#include "tst_languageChange.moc"
