#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstddef>
#include <vector>

namespace guide::fuzz {

/// Splits the fuzzer's bytes into arguments: parts between record separators and, at the end, one byte for a
/// choice. Parts are not encoded, so that a page in a failing input remains readable.
class FuzzInput {
  public:
    explicit FuzzInput(QByteArrayView bytes)
        : m_parts(bytes.empty() ? bytes : bytes.chopped(1))
        , m_choice(bytes.empty() ? 0 : static_cast<unsigned char>(bytes.back())) {}

    /// 0 to count - 1; count must be positive.
    std::size_t choice(std::size_t count) const { return m_choice % count; }

    /// At most `most` parts; the last one contains the rest.
    std::vector<QByteArray> parts(std::size_t most) const;
    /// The same, converted to valid UTF-8; readers get nothing else.
    std::vector<QByteArray> textParts(std::size_t most) const;
    QByteArray whole() const { return m_parts.toByteArray(); }

  private:
    QByteArrayView m_parts;
    unsigned char m_choice;
};

/// The inverse of FuzzInput.
QByteArray fuzzInput(const std::vector<QByteArray>& parts, std::size_t choice = 0);

} // namespace guide::fuzz
