#include "platform/linux/calendar/ICalendarText.h"

#include <algorithm>
#include <tuple>

namespace guide {

namespace {

constexpr std::size_t kDeepest = 8;
constexpr std::size_t kMostComponents = 20'000;
constexpr QByteArrayView kByteOrderMark("\xEF\xBB\xBF");

bool isContinuation(QByteArrayView text, qsizetype at) {
    return at < text.size() && (text[at] == ' ' || text[at] == '\t');
}

qsizetype afterLineEnd(QByteArrayView text, qsizetype at) {
    const qsizetype found = text.indexOf('\n', at);
    return found < 0 ? text.size() : found + 1;
}

QByteArray unfolded(QByteArrayView raw) {
    QByteArray line;
    line.reserve(raw.size());
    for (qsizetype at = 0; at < raw.size();) {
        const qsizetype next = afterLineEnd(raw, at);
        qsizetype end = next;
        while (end > at && (raw[end - 1] == '\n' || raw[end - 1] == '\r')) {
            --end;
        }
        // The first byte of a continuation belongs to the fold.
        const qsizetype begin = at == 0 ? at : at + 1;
        if (end > begin) {
            line.append(raw.data() + begin, end - begin);
        }
        at = next;
    }
    return line;
}

/// The position of the first of two characters that is not within quotes; the size when there is none.
qsizetype unquoted(QByteArrayView line, qsizetype from, char one, char other) {
    bool isQuoted = false;
    for (qsizetype at = from; at < line.size(); ++at) {
        if (line[at] == '"') {
            isQuoted = !isQuoted;
        } else if (!isQuoted && (line[at] == one || line[at] == other)) {
            return at;
        }
    }
    return line.size();
}

} // namespace

QByteArray iCalendarParameter(const ICalendarProperty& property, QByteArrayView name) {
    const QByteArrayView all = property.parameters;
    for (qsizetype at = 0; at < all.size();) {
        const qsizetype end = unquoted(all, at + 1, ';', ';');
        const QByteArrayView one = all.sliced(at + 1, end - at - 1);
        const qsizetype equals = one.indexOf('=');
        if (equals >= 0 && one.first(equals).compare(name, Qt::CaseInsensitive) == 0) {
            QByteArray value = one.sliced(equals + 1).toByteArray();
            if (value.size() >= 2 && value.startsWith('"') && value.endsWith('"')) {
                value = value.mid(1, value.size() - 2);
            }
            return value;
        }
        at = end;
    }
    return {};
}

std::optional<ICalendarText> ICalendarText::parse(const QByteArray& text) {
    ICalendarText parsed;
    parsed.m_text = text;
    std::vector<std::size_t> open;
    const QByteArrayView all = text;
    for (qsizetype at = all.startsWith(kByteOrderMark) ? kByteOrderMark.size() : 0; at < all.size();) {
        Line line{at, afterLineEnd(all, at)};
        while (isContinuation(all, line.end)) {
            line.end = afterLineEnd(all, line.end);
        }
        at = line.end;
        if (parsed.hasName(line, "BEGIN")) {
            if (open.size() == kDeepest || parsed.m_components.size() == kMostComponents) {
                return std::nullopt;
            }
            Component component;
            component.name = parsed.property(line).value.trimmed().toUpper();
            component.begin = line.begin;
            if (!open.empty()) {
                component.parent = open.back();
            }
            open.push_back(parsed.m_components.size());
            parsed.m_components.push_back(std::move(component));
        } else if (parsed.hasName(line, "END")) {
            if (open.empty() ||
                parsed.property(line).value.trimmed().toUpper() != parsed.m_components[open.back()].name) {
                return std::nullopt;
            }
            Component& component = parsed.m_components[open.back()];
            component.last = line.begin;
            component.end = line.end;
            open.pop_back();
        } else if (!open.empty()) {
            parsed.m_components[open.back()].lines.push_back(line);
        }
    }
    return open.empty() && !parsed.m_components.empty() ? std::optional(std::move(parsed)) : std::nullopt;
}

QByteArrayView ICalendarText::textOf(const Component& component) const {
    return QByteArrayView(m_text).sliced(component.begin, component.end - component.begin);
}

bool ICalendarText::hasName(const Line& line, QByteArrayView name) const {
    const QByteArrayView raw = QByteArrayView(m_text).sliced(line.begin, line.end - line.begin);
    if (raw.size() > name.size() && (raw[name.size()] == ':' || raw[name.size()] == ';')) {
        return raw.first(name.size()).compare(name, Qt::CaseInsensitive) == 0;
    }
    // The name itself may be folded.
    const qsizetype end = raw.indexOf('\n');
    return end >= 0 && end <= name.size() + 1 && end + 1 < raw.size() && property(line).name == name;
}

ICalendarProperty ICalendarText::property(const Line& line) const {
    const QByteArray whole = unfolded(QByteArrayView(m_text).sliced(line.begin, line.end - line.begin));
    const qsizetype nameEnd = unquoted(whole, 0, ';', ':');
    const qsizetype colon = unquoted(whole, nameEnd, ':', ':');
    return {.name = whole.left(nameEnd).toUpper(),
            .parameters = whole.mid(nameEnd, colon - nameEnd),
            .value = whole.mid(colon + 1)};
}

std::optional<ICalendarProperty> ICalendarText::property(const Component& component,
                                                         QByteArrayView name) const {
    const auto found =
        std::ranges::find_if(component.lines, [&](const Line& line) { return hasName(line, name); });
    return found == component.lines.end() ? std::nullopt : std::optional(property(*found));
}

QByteArray ICalendarText::edited(std::vector<Edit> edits) const {
    // What is inserted comes before what is replaced there.
    std::ranges::stable_sort(edits, [](const Edit& one, const Edit& other) {
        return std::tie(one.begin, one.end) < std::tie(other.begin, other.end);
    });
    const bool hasCarriageReturns = m_text.contains("\r\n");
    QByteArray result;
    qsizetype at = 0;
    for (Edit& edit : edits) {
        result += QByteArrayView(m_text).sliced(at, edit.begin - at);
        if (!hasCarriageReturns) {
            edit.replacement.replace("\r\n", "\n");
        }
        result += edit.replacement;
        at = edit.end;
    }
    return result.append(QByteArrayView(m_text).sliced(at));
}

} // namespace guide
