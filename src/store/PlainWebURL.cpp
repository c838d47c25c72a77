#include "store/PlainWebURL.h"

#include <array>
#include <string_view>

namespace guide {

namespace {

constexpr qsizetype kMostBytes = 2048;
constexpr qsizetype kLongestHost = 253;
constexpr qsizetype kLongestLabel = 63;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Whether a label of a host is neither international nor malformed.
bool isPlainLabel(QByteArrayView label) {
    return !label.isEmpty() && label.size() <= kLongestLabel && !label.startsWith('-') &&
           !label.endsWith('-') && !(label.size() > 3 && label[2] == '-' && label[3] == '-');
}

bool isPlainHost(QByteArrayView host) {
    if (host.size() > kLongestHost) {
        return false;
    }
    qsizetype start = 0;
    for (qsizetype i = 0; i < host.size(); ++i) {
        const char c = host[i];
        if (c == '.') {
            if (!isPlainLabel(host.sliced(start, i - start))) {
                return false;
            }
            start = i + 1;
        } else if (!(c >= 'a' && c <= 'z') && !isDigit(c) && c != '-') {
            return false;
        }
    }
    // QUrl completes IPv4 addresses such as 127.1, whose last label is a number.
    const QByteArrayView last = host.sliced(start);
    return isPlainLabel(last) && !isDigit(last.front());
}

enum class Kind : unsigned char { Other, Unreserved, Allowed };

constexpr auto kKinds = [] {
    std::array<Kind, 256> kinds{};
    for (const char c :
         std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~")) {
        kinds[static_cast<unsigned char>(c)] = Kind::Unreserved;
    }
    for (const char c : std::string_view("/=&?,;:@+!$'()*")) {
        kinds[static_cast<unsigned char>(c)] = Kind::Allowed;
    }
    return kinds;
}();

/// Whether the text begins with an escape that QUrl keeps: its digits are in upper case, and it does not
/// stand for an unreserved character.
bool startsWithKeptEscape(QByteArrayView text) {
    constexpr std::string_view kDigits("0123456789ABCDEF");
    if (text.size() < 3) {
        return false;
    }
    const std::size_t high = kDigits.find(text[1]);
    const std::size_t low = kDigits.find(text[2]);
    return high != kDigits.npos && low != kDigits.npos && kKinds[high * 16 + low] != Kind::Unreserved;
}

/// Of the part after the host.
bool isPlainPath(QByteArrayView path) {
    for (qsizetype i = 0; i < path.size(); ++i) {
        if (path[i] == '%') {
            if (!startsWithKeptEscape(path.sliced(i))) {
                return false;
            }
            i += 2;
        } else if (kKinds[static_cast<unsigned char>(path[i])] == Kind::Other) {
            return false;
        }
    }
    return true;
}

} // namespace

bool isPlainWebURL(QByteArrayView text) {
    if (text.size() > kMostBytes) {
        return false;
    }
    for (const QByteArrayView scheme : {QByteArrayView("https://"), QByteArrayView("http://")}) {
        if (text.startsWith(scheme)) {
            const QByteArrayView rest = text.sliced(scheme.size());
            qsizetype end = 0;
            while (end < rest.size() && rest[end] != '/' && rest[end] != '?') {
                ++end;
            }
            return isPlainHost(rest.first(end)) && isPlainPath(rest.sliced(end));
        }
    }
    return false;
}

} // namespace guide
