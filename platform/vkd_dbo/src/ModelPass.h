#pragma once

#include <QByteArray>

namespace vkd {
namespace dbo {

/// While it lives, all that is read of the project's model is from one state of the project. It
/// holds the system's record, which every model has and nobody else may read meanwhile: the store
/// would take the end of that for the end of the pass.
class ModelPass
{
public:
    explicit ModelPass(int index);
    ModelPass(const ModelPass&) = delete;
    ModelPass& operator=(const ModelPass&) = delete;
    ~ModelPass();

    /// False also if the store failed.
    bool hasModel() const { return m_isHeld; }
    const QByteArray& system() const { return m_system; }

private:
    int m_index;
    QByteArray m_system;
    bool m_isHeld;
};

} // namespace dbo
} // namespace vkd
