#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <memory>

namespace guide {

/// What a search ignores.
enum class FoldMode {
    /// Nothing: compares code units.
    None,
    Case,
    Diacritics,
    CaseAndDiacritics,
    /// Case, diacritics, and what people type in place of letters that are not on their keyboards: ss for ß,
    /// d for đ, l for ł, o for ø, i for ı.
    Lookalikes,
};

/// What one character folds to: at most a few units, none for an ignored mark.
class FoldedCharacter {
  public:
    const char16_t* begin() const { return m_units.data(); }
    const char16_t* end() const { return m_units.data() + m_size; }
    qsizetype size() const { return m_size; }

    void append(char32_t character);

  private:
    /// A canonical decomposition has at most four characters.
    std::array<char16_t, 8> m_units;
    qsizetype m_size = 0;
};

/// How each code unit of the basic plane folds in a mode. Marks vanish if diacritics are ignored; letters
/// that do not decompose (đ, ł, ß, ı) stay, except among lookalikes; a few (Hangul) become several units.
class FoldTable {
  public:
    /// Surrogates, which no character folds to alone.
    static constexpr char16_t kDropped = 0xD800;
    static constexpr char16_t kSeveral = 0xDC00;

    /// The table of a mode, created on first use and kept for the process.
    static const FoldTable& of(FoldMode mode);

    FoldMode mode() const { return m_mode; }

    /// The folded unit; kDropped or kSeveral if there is none or more than one. Surrogates give kSeveral:
    /// pairs must go through fold.
    char16_t operator[](char16_t unit) const { return (*m_units)[unit]; }

    /// What the character folds to, by the rules of Unicode.
    FoldedCharacter fold(char32_t character) const;

    QString folded(QStringView text) const;

  private:
    explicit FoldTable(FoldMode mode);

    void append(char32_t character, FoldedCharacter& to) const;
    void appendBases(char32_t character, FoldedCharacter& to) const;

    FoldMode m_mode;
    std::unique_ptr<std::array<char16_t, 0x10000>> m_units;
};

/// Returns the code point at the position and advances the position past it. A lone surrogate counts as a
/// code point.
char32_t takeCodePoint(QStringView text, qsizetype& position);

} // namespace guide
