#pragma once

#include <vector>

class QIODevice;

namespace plib {

/// Reads the lines of a catalogue. A line is what QIODevice::readLine() returns for a buffer of
/// 1024 bytes: at most 1023 bytes, including the newline if there is one. The rest of a longer line
/// is a separate line. The device is read in blocks, because calling readLine() takes longer than
/// finding the newline.
class CatalogueLines
{
public:
    static constexpr int MaximumLength = 1023;

    /// The device must outlive the object.
    explicit CatalogueLines(QIODevice& device);

    /// Reads the next line. Returns false at the end of the device.
    bool next();
    /// These functions return the line, which is valid until next() is called.
    const char* bytes() const { return m_line; }
    int length() const { return m_length; }
    /// Returns whether the line is complete, that is, not continued by the next line.
    bool isWhole() const;

private:
    const char* newline() const;
    bool readBlock();

    QIODevice& m_device;
    std::vector<char> m_block;
    const char* m_begin; // beginning of the unread bytes
    const char* m_end;
    const char* m_line = nullptr;
    int m_length = 0;
};

} // namespace plib
