#include "faultyKey.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace vkd {
namespace dbo {

namespace {
/// Collects the keys of the objects that are not yet closed. The keys are sorted at the end of each
/// object.
class KeyScanner
{
public:
    explicit KeyScanner(std::string_view json)
        : m_json(json)
    {
    }

    FaultyKey find()
    {
        for (size_t at = 0; at < m_json.size() && m_found.fault == FaultyKey::None; ++at) {
            const char c = m_json[at];
            if (c == '"')
                at = readText(at);
            else if (c == '{' || c == '[')
                m_open.push_back({m_keys.size(), c == '{'});
            else if (c == '}' || c == ']')
                close();
            if (c == '{' || c == ',')
                m_isKey = !m_open.empty() && m_open.back().isObject;
            else if (c == ':' || c == '[' || c == ']' || c == '}')
                m_isKey = false;
        }
        return m_found;
    }

private:
    struct Open
    {
        size_t firstKey;
        bool isObject;
    };

    /// Returns the position of the closing quote, or the end of the text.
    size_t readText(size_t begin)
    {
        size_t end = begin + 1;
        while (end < m_json.size() && m_json[end] != '"')
            end += m_json[end] == '\\' ? 2 : 1;
        if (m_isKey)
            addKey(m_json.substr(begin, std::min(end, m_json.size()) - begin));
        return end;
    }

    void addKey(std::string_view key)
    {
        if (m_keys.size() - m_open.back().firstKey == MostKeys)
            m_found = {FaultyKey::TooMany, offsetOf(key)};
        m_keys.push_back(key);
    }

    void close()
    {
        if (m_open.empty())
            return;
        const auto first = m_keys.begin() + std::ptrdiff_t(m_open.back().firstKey);
        std::sort(first, m_keys.end());
        const auto repeated = std::adjacent_find(first, m_keys.end());
        if (repeated != m_keys.end())
            m_found = {FaultyKey::Repeated,
                       std::max(offsetOf(*repeated), offsetOf(*(repeated + 1)))};
        m_keys.erase(first, m_keys.end());
        m_open.pop_back();
    }

    int offsetOf(std::string_view key) const { return int(key.data() - m_json.data()); }

    std::string_view m_json;
    std::vector<std::string_view> m_keys;
    std::vector<Open> m_open;
    bool m_isKey = false;
    FaultyKey m_found;
};
} // namespace

FaultyKey findFaultyKey(const QByteArray& json)
{
    return KeyScanner({json.constData(), size_t(json.size())}).find();
}

} // namespace dbo
} // namespace vkd
