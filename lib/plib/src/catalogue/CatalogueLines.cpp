#include "catalogue/CatalogueLines.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>

namespace plib {

namespace {
constexpr size_t BlockLength = 1 << 16;
}

CatalogueLines::CatalogueLines(QIODevice& device)
    : m_device(device)
    , m_block(BlockLength)
    , m_begin(m_block.data())
    , m_end(m_begin)
{
}

bool CatalogueLines::next()
{
    const char* last = newline();
    while (!last && m_end - m_begin < MaximumLength && readBlock())
        last = newline();
    m_line = m_begin;
    m_begin = last ? last + 1 : std::min(m_begin + MaximumLength, m_end);
    m_length = int(m_begin - m_line);
    return m_length > 0;
}

bool CatalogueLines::isWhole() const
{
    return m_line[m_length - 1] == '\n' || (m_begin == m_end && m_device.atEnd());
}

/// Returns a pointer to the newline of the next line, or null if the line has none or has not been
/// read completely.
const char* CatalogueLines::newline() const
{
    const auto length = std::min<std::ptrdiff_t>(m_end - m_begin, MaximumLength);
    return static_cast<const char*>(std::memchr(m_begin, '\n', size_t(length)));
}

/// Moves the incomplete line to the beginning of the block and reads more bytes after it. Returns
/// whether any bytes were read.
bool CatalogueLines::readBlock()
{
    const auto kept = size_t(m_end - m_begin);
    std::memmove(m_block.data(), m_begin, kept);
    const qint64 length = m_device.read(m_block.data() + kept, qint64(m_block.size() - kept));
    m_begin = m_block.data();
    m_end = m_begin + kept + std::max<qint64>(length, 0);
    return length > 0;
}

} // namespace plib
