#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <memory>

namespace guide {

/// What a search does not distinguish.
enum class FoldMode {
    /// Nothing: code unit by code unit.
    None,
    Case,
    Diacritics,
    CaseAndDiacritics,
};

/// How one code unit of the basic plane folds in a mode. Marks vanish where diacritics do not count, letters
/// that do not decompose (đ, ł, ß, ı) stay, and a few (Hangul) become several units.
class FoldTable {
  public:
    /// Values that stand for no unit of their own.
    static constexpr char16_t kDropped = 0xFFFF;
    static constexpr char16_t kSeveral = 0xFFFE;

    /// The table of a mode, made on first use and kept for the process.
    static const FoldTable& of(FoldMode mode);

    FoldMode mode() const { return m_mode; }

    /// The folded unit; kDropped or kSeveral where there is none or more than one. Surrogates fold to
    /// kSeveral: pairs go through append.
    char16_t operator[](char16_t unit) const { return (*m_units)[unit]; }

    /// Appends what the character folds to, by Unicode.
    void append(char32_t character, QString& to) const;

  private:
    explicit FoldTable(FoldMode mode);

    FoldMode m_mode;
    std::unique_ptr<std::array<char16_t, 0x10000>> m_units;
};

/// The code point at the position, which moves behind it. A lone surrogate is its own code point.
char32_t takeCodePoint(QStringView text, qsizetype& position);

} // namespace guide
