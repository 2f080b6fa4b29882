#include "window/presets/PresetsDialog.h"

#include "window/support/HelpKey.h"
#include "window/support/WindowGeometry.h"
#include "window/support/withinScreen.h"

#include <QGridLayout>
#include <QPushButton>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace workbench {

namespace {
constexpr int PlaceRole = Qt::UserRole;
} // namespace

PresetsDialog::PresetsDialog(const Source& source, const QString& newText, QWidget* options,
                             QWidget* parent)
    : VKD_H_Dialog(parent, "PresetsDialog")
    , m_source(source)
{
    setWindowTitle(tr("Presets"));
    setHelpTopic(this, source.helpTopic);
    auto layout = new QGridLayout(this);
    layout->addWidget(newList(), 0, 0);
    layout->addWidget(newDetails(options), 0, 1);
    layout->addWidget(newButtons(newText), 0, 2);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    resizeWithinScreen(this, {fontMetrics().averageCharWidth() * 140, fontMetrics().height() * 28});
    new WindowGeometry(this);
}

QString PresetsDialog::titleOf(PresetPlace place)
{
    switch (place) {
    case PresetPlace::Supplied: return tr("Supplied");
    case PresetPlace::User: return tr("My presets");
    case PresetPlace::Project: break;
    }
    return tr("Presets of this project");
}

QWidget* PresetsDialog::newList()
{
    m_list = new QTreeWidget(this);
    m_list->setObjectName(QStringLiteral("presetList"));
    m_list->setAccessibleName(windowTitle());
    m_list->setHeaderHidden(true);
    m_list->setRootIsDecorated(false);
    m_list->setItemsExpandable(false);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &PresetsDialog::currentChanged);
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &PresetsDialog::apply);
    return m_list;
}

QWidget* PresetsDialog::newDetails(QWidget* options)
{
    auto side = new QWidget(this);
    m_details = new QTextBrowser(side);
    m_details->setObjectName(QStringLiteral("presetDetails"));
    m_details->setAccessibleName(tr("Description"));
    auto layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_details, 1);
    layout->addWidget(options);
    return side;
}

QWidget* PresetsDialog::newButtons(const QString& newText)
{
    auto side = new QWidget(this);
    auto layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    m_apply = newButton("presetApply", tr("&Apply"), &PresetsDialog::apply);
    m_apply->setDefault(true);
    m_create = newButton("presetNew", newText, &PresetsDialog::create);
    m_rename = newButton("presetRename", tr("Re&name..."), &PresetsDialog::rename);
    m_remove = newButton("presetDelete", tr("&Delete"), &PresetsDialog::remove);
    QPushButton* import = newButton("presetImport", tr("&Import..."), &PresetsDialog::importFile);
    m_export = newButton("presetExport", tr("&Export..."), &PresetsDialog::exportFile);
    auto close = new QPushButton(tr("Close"), this);
    connect(close, &QPushButton::clicked, this, &PresetsDialog::reject);
    for (QPushButton* button : {m_apply, m_create, m_rename, m_remove, import, m_export})
        layout->addWidget(button);
    layout->addStretch(1);
    layout->addWidget(close);
    return side;
}

QPushButton* PresetsDialog::newButton(const char* name, const QString& text,
                                      void (PresetsDialog::*run)())
{
    auto button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, run);
    return button;
}

void PresetsDialog::fill()
{
    m_list->clear();
    for (PresetPlace place : m_source.places)
        addPlace(place);
    m_list->setCurrentItem(m_list->topLevelItem(0)->child(0));
    currentChanged();
}

/// If the presets cannot be read, the list shows the reason.
void PresetsDialog::addPlace(PresetPlace place)
{
    PresetReading& reading = m_places[int(place)];
    reading = presetsOf(m_source.kind, place, m_source.project);
    auto head = new QTreeWidgetItem(m_list, {titleOf(place)});
    head->setFlags(Qt::ItemIsEnabled);
    QFont bold = font();
    bold.setBold(true);
    head->setFont(0, bold);
    for (const Preset& preset : qAsConst(reading.presets)) {
        auto item = new QTreeWidgetItem(head, {preset.name});
        item->setData(0, PlaceRole, int(place));
        item->setToolTip(0, preset.description.toHtmlEscaped());
    }
    if (!reading.fault.isEmpty()) {
        auto item = new QTreeWidgetItem(head, {reading.fault});
        item->setFlags(Qt::NoItemFlags);
        item->setToolTip(0, reading.fault.toHtmlEscaped());
    }
    head->setExpanded(true);
}

void PresetsDialog::select(PresetPlace place, const QString& name)
{
    const QList<QTreeWidgetItem*> items =
        m_list->findItems(name, Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
    for (QTreeWidgetItem* item : items)
        if (item->parent() && item->data(0, PlaceRole).toInt() == int(place))
            m_list->setCurrentItem(item);
}

const Preset* PresetsDialog::current() const
{
    const QTreeWidgetItem* item = m_list->currentItem();
    return item && item->parent() ? findPreset(m_places[int(currentPlace())].presets, item->text(0))
                                  : nullptr;
}

PresetPlace PresetsDialog::currentPlace() const
{
    const QTreeWidgetItem* item = m_list->currentItem();
    return item ? PresetPlace(item->data(0, PlaceRole).toInt()) : PresetPlace::Supplied;
}

/// Returns the place that receives imported presets.
PresetPlace PresetsDialog::writablePlace() const
{
    return currentPlace() == PresetPlace::Project ? PresetPlace::Project : PresetPlace::User;
}

void PresetsDialog::currentChanged()
{
    const Preset* preset = current();
    showOptions(preset);
    QString text;
    if (preset)
        text =
            QLatin1String("<h3>") + preset->name.toHtmlEscaped() + QLatin1String("</h3><p>") +
            preset->description.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")) +
            QLatin1String("</p>") + contentsText(preset->contents);
    m_details->setHtml(text);
    enableButtons();
}

void PresetsDialog::enableButtons()
{
    const bool isPreset = current();
    const bool isOwn = isPreset && currentPlace() != PresetPlace::Supplied;
    enable(m_apply, m_create, isPreset);
    m_rename->setEnabled(isOwn);
    m_remove->setEnabled(isOwn);
    m_export->setEnabled(isPreset);
}

QStringList PresetsDialog::namesIn(PresetPlace place) const
{
    QStringList names;
    for (const Preset& preset : m_places[int(place)].presets)
        names << preset.name;
    return names;
}

} // namespace workbench
