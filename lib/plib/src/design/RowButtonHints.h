#pragma once

#include <QObject>
#include <QString>

#include <functional>

class DesignParameter;
class QPushButton;

namespace plib {

/// Explains why Up, Down or Delete has no effect on the selected rows. The tool tips of these
/// buttons show the reason, and so does the line beside the buttons after a click without effect.
/// The object is a child of the design page.
class RowButtonHints : public QObject
{
    Q_OBJECT

public:
    explicit RowButtonHints(DesignParameter* page);

private:
    void explain(const char* name, const std::function<QString()>& refusal);

    DesignParameter* m_page;
    QString m_refusal; ///< reason on mouse press; the click may change the rows
};

} // namespace plib
