#include "catalogue/Catalogue.h"

#include "catalogue/CatalogueParser.h"

#include <vkd_lib_searchpath.h>

#include <QCoreApplication>
#include <QFile>

namespace plib {

namespace {
constexpr int SearchMode = 3;

/// Translates messages in the context of the tree, because they report why the tree remains empty.
struct TreeText
{
    Q_DECLARE_TR_FUNCTIONS(GraphicalOutputTreeWidget)
};
} // namespace

Catalogue& sharedCatalogue()
{
    static Catalogue catalogue;
    return catalogue;
}

bool loadCatalogue(Catalogue& catalogue, vkd::Language language, const ShowError& showError)
{
    if (int(language) == catalogue.catalogueLanguage)
        return true;
    const auto path = vkd_lib_searchpath(CatalogueFile, SearchMode);
    if (!path) {
        showError(TreeText::tr("File not found"),
                  TreeText::tr("File %1 not found").arg(QLatin1String(CatalogueFile)));
        return false;
    }
    QFile file(QFile::decodeName(path->c_str()));
    if (!file.open(QIODevice::ReadOnly)) {
        showError(TreeText::tr("Couldn't open file"),
                  TreeText::tr("Failed to open file %1").arg(file.fileName()));
        return false;
    }
    parseCatalogue(file, catalogue.list);
    catalogue.catalogueLanguage = int(language);
    return true;
}

} // namespace plib
