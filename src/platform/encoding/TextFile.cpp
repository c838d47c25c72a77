#include "platform/encoding/TextFile.h"

#include "platform/encoding/Utf8.h"

#include <QStringConverter>

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kDeclaration = 200;
/// One invalid byte in so many is damage; more are another character set.
constexpr qsizetype kBytesPerFault = 1'000;
constexpr std::size_t kSmallestWindow = 4;

/// What the XML declaration at the beginning says; empty when there is none.
QString declaredEncoding(QByteArrayView text) {
    const QByteArrayView start = text.first(std::min(text.size(), kDeclaration)).trimmed();
    const qsizetype end = start.indexOf("?>");
    const qsizetype name = start.indexOf("encoding=");
    if (!start.startsWith("<?xml") || name < 0 || name > end || name + 10 >= start.size()) {
        return {};
    }
    const char quote = start[name + 9];
    const qsizetype closing = start.indexOf(quote, name + 10);
    return closing < 0 ? QString() : QString::fromLatin1(start.sliced(name + 10, closing - name - 10));
}

/// Without a character that is cut off at the end.
QByteArrayView wholeCharacters(QByteArrayView text) {
    return text.chopped(static_cast<qsizetype>(cutCharacterSize(text)));
}

struct Utf8Characters {
    /// Bytes that are no characters. One that is cut off is no fault.
    qsizetype faults = 0;
    /// Of several bytes.
    qsizetype letters = 0;
};

Utf8Characters utf8CharactersIn(QByteArrayView text) {
    Utf8Characters found;
    while (!text.isEmpty()) {
        const int size = characterSize(text);
        if (size == 0) {
            break;
        }
        found.faults += size > 0 ? 0 : 1;
        found.letters += size > 1 ? 1 : 0;
        text = text.sliced(std::max(size, 1));
    }
    return found;
}

bool isDamageOnly(std::int64_t faults, QByteArrayView text) {
    return faults <= text.size() / kBytesPerFault;
}

/// Whether all bytes, but for some damaged ones, are characters of the set.
bool canDecode(const QString& name, QByteArrayView text, bool last) {
    const auto converter = CharacterConverter::open(name);
    if (!converter) {
        return false;
    }
    converter->replaceFaults();
    std::array<char, 4096> scratch{};
    std::span<char> room;
    QByteArrayView rest = text;
    do {
        room = scratch;
        converter->convert(rest, last, room);
    } while (!rest.isEmpty() || room.size() < kSmallestWindow);
    return isDamageOnly(converter->replaced(), text);
}

struct CharacterSet {
    /// Empty for UTF-8.
    QString name;
    /// The size of its byte order mark.
    qsizetype mark = 0;
};

/// The character set of a text that says nothing of it.
CharacterSet undeclaredSet(QByteArrayView text, bool last) {
    bool isUtf8 = isValidUtf8(wholeCharacters(text));
    if (!isUtf8) {
        // Other character sets hardly ever look like letters of several bytes.
        const Utf8Characters found = utf8CharactersIn(text);
        isUtf8 = isDamageOnly(found.faults, text) || found.faults <= found.letters;
    }
    const QString windows = u"windows-1250"_s;
    return !isUtf8 && canDecode(windows, text, last) ? CharacterSet{windows} : CharacterSet{};
}

/// Decides by the beginning of a document, or the whole when it is `last`.
CharacterSet characterSetOf(QByteArrayView text, bool last, const QString& declared) {
    constexpr QByteArrayView kUtf8Mark("\xef\xbb\xbf");
    if (text.startsWith(kUtf8Mark)) {
        return {{}, kUtf8Mark.size()};
    }
    const auto marked = QStringConverter::encodingForData(text);
    if (const auto wide = marked ? marked : QStringConverter::encodingForData(text, u'<');
        wide && *wide != QStringConverter::Utf8) {
        const bool isDouble = *wide == QStringConverter::Utf32LE || *wide == QStringConverter::Utf32BE;
        return {QString::fromLatin1(QStringConverter::nameForEncoding(*wide)), !marked    ? 0
                                                                               : isDouble ? 4
                                                                                          : 2};
    }
    const QByteArrayView whole = last ? text : wholeCharacters(text);
    const bool isUtf8 = isValidUtf8(whole) && !isAscii(whole);
    for (const QString& name : {declared, declaredEncoding(text)}) {
        const auto converter = name.isEmpty() ? nullptr : CharacterConverter::open(name);
        const bool isPossible = converter && !converter->isUtf8() &&
                                !(isUtf8 && converter->smallestCharacter() == 1) &&
                                (converter->smallestCharacter() == 1 || text.contains('\0'));
        if (isPossible && canDecode(name, text, last)) {
            return {name, 0};
        }
    }
    return undeclaredSet(text, last);
}

QString decodedBeginning(QByteArrayView bytes, const QString& declared) {
    const CharacterSet set = characterSetOf(bytes, false, declared);
    bytes = bytes.sliced(set.mark);
    if (set.name.isEmpty()) {
        return QString::fromUtf8(wholeCharacters(bytes));
    }
    const auto converter = CharacterConverter::open(set.name);
    QByteArray text(bytes.size() * 4, Qt::Uninitialized);
    std::span<char> room(text.data(), static_cast<std::size_t>(text.size()));
    converter->replaceFaults();
    converter->convert(bytes, false, room);
    return QString::fromUtf8(text.constData(), text.size() - static_cast<qsizetype>(room.size()));
}

PackedFileOptions packedOptions(const TextFileOptions& options) {
    PackedFileOptions packed{.physicalMemory = options.physicalMemory};
    if (options.isWanted) {
        packed.isWanted = [isWanted = options.isWanted, charset = options.charset](QByteArrayView bytes) {
            return isWanted(decodedBeginning(bytes, charset));
        };
    }
    return packed;
}

} // namespace

TextFile::TextFile(const QString& path, const TextFileOptions& options)
    : m_charset(options.charset)
    , m_window(std::max(options.window, kSmallestWindow))
    , m_file(path, packedOptions(options)) {}

std::int64_t TextFile::replacedBytes() const {
    return m_replaced + (m_converter ? m_converter->replaced() : 0);
}

std::size_t TextFile::read(std::span<char> room) {
    if (!m_isDecided) {
        fill();
        decide();
    }
    std::size_t written = 0;
    if (!m_converter && m_raw.size() - m_at < qsizetype(kSmallestWindow) && room.size() >= m_window) {
        written = readUtf8(room);
        if (written > 0) {
            return written;
        }
    }
    // Nothing was written when the bytes are no valid UTF-8, or their character set has only now become
    // clear.
    while (written == 0 && !(m_isLast && m_at == m_raw.size())) {
        fill();
        written = m_converter ? readConverted(room) : repairUtf8(room);
    }
    if (written == 0 && m_converter) {
        written = readConverted(room);
    }
    m_replaced += blankControlCharacters(room.first(written));
    return written;
}

/// Reads a window behind what is not decoded yet, when that may be only the beginning of a character.
void TextFile::fill() {
    if (m_isLast || m_raw.size() - m_at >= static_cast<qsizetype>(kSmallestWindow)) {
        return;
    }
    m_raw.remove(0, std::exchange(m_at, 0));
    const qsizetype kept = m_raw.size();
    m_raw.resize(kept + static_cast<qsizetype>(m_window));
    const std::size_t got = m_file.read({m_raw.data() + kept, m_window});
    m_raw.truncate(kept + static_cast<qsizetype>(got));
    m_isLast = got < m_window;
}

void TextFile::decide() {
    m_isDecided = true;
    const CharacterSet set = characterSetOf(m_raw, m_isLast, m_charset);
    m_at = set.mark;
    m_isPlain = isAscii(m_raw);
    if (!set.name.isEmpty()) {
        useConverter(CharacterConverter::open(set.name));
    }
}

void TextFile::useConverter(std::unique_ptr<CharacterConverter> converter) {
    m_converter = std::move(converter);
    m_converter->replaceFaults();
}

/// Unpacks straight into the room. Leaves the bytes undecoded when they are not valid.
std::size_t TextFile::readUtf8(std::span<char> room) {
    if (m_isLast) {
        return 0;
    }
    const QByteArrayView rest = QByteArrayView(m_raw).sliced(m_at);
    std::copy(rest.begin(), rest.end(), room.begin());
    const auto kept = static_cast<std::size_t>(rest.size());
    const std::span<char> fresh = room.first(m_window).subspan(kept);
    const std::size_t got = m_file.read(fresh);
    m_isLast = got < fresh.size();
    const QByteArrayView bytes(room.data(), static_cast<qsizetype>(kept + got));
    const QByteArrayView whole = m_isLast ? bytes : wholeCharacters(bytes);
    m_at = 0;
    const CheckedUtf8 checked = checkedUtf8(whole);
    if (!checked.isValid) {
        m_raw = bytes.toByteArray();
        return 0;
    }
    m_isPlain = m_isPlain && isAscii(whole);
    m_raw = bytes.sliced(whole.size()).toByteArray();
    const auto size = static_cast<std::size_t>(whole.size());
    if (checked.hasControlCharacters) {
        m_replaced += blankControlCharacters(room.first(size));
    }
    return size;
}

std::size_t TextFile::repairUtf8(std::span<char> room) {
    QByteArrayView bytes = QByteArrayView(m_raw).sliced(m_at);
    if (m_isPlain) {
        const CharacterSet set = undeclaredSet(bytes, m_isLast);
        if (!set.name.isEmpty()) {
            useConverter(CharacterConverter::open(set.name));
            return 0;
        }
        m_isPlain = isAscii(bytes);
    }
    constexpr QByteArrayView kReplacement("\xef\xbf\xbd");
    constexpr std::size_t kLongestCharacter = 4;
    char* out = room.data();
    const char* const end = out + room.size();
    while (!bytes.isEmpty() && static_cast<std::size_t>(end - out) >= kLongestCharacter) {
        const int size = characterSize(bytes);
        if (size == 0 && !m_isLast) {
            break;
        }
        const QByteArrayView character = size > 0 ? bytes.first(size) : kReplacement;
        m_replaced += size > 0 ? 0 : 1;
        out = std::copy(character.begin(), character.end(), out);
        // The beginning of a character at the end of the text counts once.
        bytes = size == 0 ? bytes.last(0) : bytes.sliced(std::max(size, 1));
    }
    m_at = m_raw.size() - bytes.size();
    return static_cast<std::size_t>(out - room.data());
}

std::size_t TextFile::readConverted(std::span<char> room) {
    const std::size_t before = room.size();
    QByteArrayView bytes = QByteArrayView(m_raw).sliced(m_at);
    m_converter->convert(bytes, m_isLast, room);
    m_at = m_raw.size() - bytes.size();
    return before - room.size();
}

} // namespace guide
