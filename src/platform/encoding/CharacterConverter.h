#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <memory>
#include <span>

namespace guide {

/// Converts a text to UTF-8, piece by piece.
class CharacterConverter {
  public:
    virtual ~CharacterConverter() = default;

    /// From the character set with this IANA name or common alias; null when it is unknown.
    static std::unique_ptr<CharacterConverter> open(const QString& ianaName);

    virtual bool isUtf8() const { return false; }
    /// In bytes.
    virtual int smallestCharacter() const { return 1; }

    /// From now on bytes that cannot be decoded are replaced by U+FFFD and counted.
    virtual void replaceFaults() = 0;
    std::int64_t replaced() const { return m_replaced; }

    /// Takes bytes from the front of `input`, `last` if they end the text, and writes characters to the front
    /// of `room`, until one of them is used up; a character that is cut off by the end of `input` is kept for
    /// the next call. False when a byte cannot be decoded.
    virtual bool convert(QByteArrayView& input, bool last, std::span<char>& room) = 0;

  protected:
    std::int64_t m_replaced = 0;
};

} // namespace guide
