#pragma once

#include "vkd_dbo_model.h"

#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

#include <cstring>

namespace vkd {
namespace dbo {

/// Writes the fields of an item to its record in little-endian order, and strings as length and
/// UTF-16 code units, in the format of QDataStream. Creating a stream for each record would take
/// longer than writing the fields.
class FieldWriter
{
public:
    explicit FieldWriter(QByteArray* bytes)
        : m_bytes(bytes)
    {
        m_bytes->reserve(ShortRecord);
    }
    void operator()(int value) { append(qint32(value)); }
    void operator()(double value)
    {
        quint64 bits;
        static_assert(sizeof bits == sizeof value);
        std::memcpy(&bits, &value, sizeof bits);
        append(bits);
    }
    void operator()(const QString& value)
    {
        if (value.isNull())
            return append(NullText);
        append(quint32(sizeof(QChar)) * quint32(value.size()));
        for (const QChar c : value)
            append(c.unicode());
    }
    template <typename T>
    void operator()(const QVector<T>& list)
    {
        append(qint32(list.size()));
        for (const T& element : list)
            (*this)(element);
    }
    template <typename T, size_t N>
    void operator()(const std::array<T, N>& values)
    {
        for (const T& value : values)
            (*this)(value);
    }

private:
    static constexpr int ShortRecord = 40;
    static constexpr quint32 NullText = 0xffffffff;

    template <typename T>
    void append(T value)
    {
        char bytes[sizeof value];
        qToLittleEndian(value, bytes);
        m_bytes->append(bytes, sizeof bytes);
    }

    QByteArray* m_bytes;
};

/// Reads records written by FieldWriter. isComplete() returns false for a record that is too short
/// or contains an invalid length.
class FieldReader
{
public:
    explicit FieldReader(const QByteArray& bytes)
        : m_stream(bytes)
    {
        m_stream.setByteOrder(QDataStream::LittleEndian);
    }
    bool isComplete() const { return m_stream.status() == QDataStream::Ok; }

    void operator()(int& value)
    {
        qint32 read = 0;
        m_stream >> read;
        value = read;
    }
    void operator()(double& value) { m_stream >> value; }
    void operator()(QString& value) { m_stream >> value; }
    template <typename T>
    void operator()(QVector<T>& list)
    {
        int size = 0;
        (*this)(size);
        if (size < 0 || size > m_stream.device()->bytesAvailable() / qint64(sizeof(T))) {
            m_stream.setStatus(QDataStream::ReadCorruptData);
            return;
        }
        list.resize(size);
        for (T& element : list)
            (*this)(element);
    }
    template <typename T, size_t N>
    void operator()(std::array<T, N>& values)
    {
        for (T& value : values)
            (*this)(value);
    }

private:
    QDataStream m_stream;
};

template <typename Archive, typename Numbers>
void numbers(Archive& archive, Numbers& values)
{
    for (auto& value : values)
        archive(value);
}

// The fields of each record type in storage order. `Archive` is one of the two classes above.

template <typename Archive>
void fields(Archive& archive, Node& node)
{
    archive(node.number);
    archive(node.position);
}

template <typename Archive>
void fields(Archive& archive, Boundary& boundary)
{
    archive(boundary.node);
    archive(boundary.fixed);
}

template <typename Archive>
void fields(Archive& archive, CrossSection& section)
{
    archive(section.number);
    archive(section.title);
}

template <typename Archive>
void fields(Archive& archive, Group& group)
{
    archive(group.number);
    archive(group.title);
}

template <typename Archive>
void fields(Archive& archive, SecondaryGroup& group)
{
    archive(group.name);
    archive(group.title);
    archive(group.quads);
    archive(group.beams);
}

template <typename Archive>
void fields(Archive& archive, LineElement& element)
{
    archive(element.number);
    archive(element.group);
    archive(element.crossSection);
    numbers(archive, element.nodes);
}

template <typename Archive>
void fields(Archive& archive, Spring& spring)
{
    archive(spring.number);
    archive(spring.group);
    numbers(archive, spring.nodes);
    archive(spring.stiffness);
}

template <typename Archive>
void fields(Archive& archive, Quad& quad)
{
    archive(quad.number);
    archive(quad.group);
    numbers(archive, quad.nodes);
    archive(quad.thickness);
}

template <typename Archive>
void fields(Archive& archive, Brick& brick)
{
    archive(brick.number);
    archive(brick.group);
    numbers(archive, brick.nodes);
}

template <typename Archive>
void fields(Archive& archive, Point& point)
{
    archive(point.number);
    archive(point.position);
}

template <typename Archive>
void fields(Archive& archive, Outline& outline)
{
    archive(outline.number);
    archive(outline.points);
}

template <typename Archive>
void fields(Archive& archive, Polyline& line)
{
    archive(line.number);
    archive(line.title);
    archive(line.points);
}

template <typename Archive>
void fields(Archive& archive, LoadCase& loadCase)
{
    archive(loadCase.number);
    archive(loadCase.title);
    archive(loadCase.kind);
}

template <typename Archive>
void fields(Archive& archive, SystemInformation& system)
{
    archive(system.title);
    archive(system.kindOfSystem);
}

} // namespace dbo
} // namespace vkd
