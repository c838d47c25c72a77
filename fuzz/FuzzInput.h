#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstddef>
#include <vector>

namespace guide::fuzz {

/// How the bytes of a fuzzer become arguments: parts with record separators between them, then one byte that
/// chooses. Parts stand as they are, so that a page stays recognisable to whoever reads a find.
class FuzzInput {
  public:
    explicit FuzzInput(QByteArrayView bytes)
        : m_parts(bytes.empty() ? bytes : bytes.chopped(1))
        , m_choice(bytes.empty() ? 0 : static_cast<unsigned char>(bytes.back())) {}

    /// Below `count`, which is not 0.
    std::size_t choice(std::size_t count) const { return m_choice % count; }

    /// At most `most` of them, the last one with all that is left.
    std::vector<QByteArray> parts(std::size_t most) const;
    /// The same as UTF-8, which pages and texts always are by the time they are read.
    std::vector<QByteArray> textParts(std::size_t most) const;
    QByteArray whole() const { return m_parts.toByteArray(); }

  private:
    QByteArrayView m_parts;
    unsigned char m_choice;
};

/// The bytes that FuzzInput takes apart into these.
QByteArray fuzzInput(const std::vector<QByteArray>& parts, std::size_t choice = 0);

} // namespace guide::fuzz
