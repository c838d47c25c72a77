#include "parsers/own/SourceText.h"

#include "parsers/playlists/Playlist.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// The kind of a document shows within its first characters.
constexpr std::size_t kBeginning = std::size_t{64} << 10;

/// With which pages and parts of pages begin.
constexpr std::array<QStringView, 14> kPageTags{u"<html", u"<head", u"<body",  u"<title", u"<meta",
                                                u"<link", u"<div",  u"<table", u"<p",     u"<script",
                                                u"<h1",   u"<ul",   u"<span",  u"<style"};

/// Behind the declaration, comments and document type that begin an XML document; `documentType` is set to
/// the name in the latter.
QStringView rootOf(QStringView text, QStringView& documentType) {
    for (;;) {
        text = text.trimmed();
        const bool isComment = text.startsWith(u"<!--");
        if (!isComment && !text.startsWith(u"<?") && !text.startsWith(u"<!")) {
            return text;
        }
        const qsizetype end = isComment ? text.indexOf(u"-->"_s) : text.indexOf(u'>');
        if (text.startsWith(u"<!doctype", Qt::CaseInsensitive)) {
            const QStringView name = text.sliced(9).trimmed();
            documentType = name.first(std::min<qsizetype>(name.size(), 4));
        }
        if (end < 0) {
            return {};
        }
        text = text.sliced(end + (isComment ? 3 : 1));
    }
}

bool beginsWithTag(QStringView text, QStringView name) {
    if (!text.startsWith(name, Qt::CaseInsensitive) || text.size() == name.size()) {
        return false;
    }
    const QChar next = text[name.size()];
    return next.isSpace() || next == u'>' || next == u'/';
}

bool hasTag(QStringView text, const QString& name) {
    for (qsizetype at = text.indexOf(name, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(name, at + 1, Qt::CaseInsensitive)) {
        if (beginsWithTag(text.sliced(at), name)) {
            return true;
        }
    }
    return false;
}

} // namespace

SourceKind sourceKindOf(QStringView beginning) {
    if (beginning.trimmed().isEmpty()) {
        return SourceKind::Empty;
    }
    if (isPlaylist(beginning)) {
        return SourceKind::Playlist;
    }
    QStringView documentType;
    const QStringView root = rootOf(beginning, documentType);
    if (documentType.compare(u"html", Qt::CaseInsensitive) == 0 ||
        std::ranges::any_of(kPageTags, [root](QStringView tag) { return beginsWithTag(root, tag); })) {
        return SourceKind::Page;
    }
    // A feed may also be a fragment.
    if (beginsWithTag(root, u"<tv") || beginsWithTag(root, u"<programme")) {
        return SourceKind::Feed;
    }
    if (hasTag(beginning, u"<html"_s) || hasTag(beginning, u"<body"_s)) {
        return SourceKind::Page;
    }
    return hasTag(beginning, u"<tv"_s) ? SourceKind::Feed : SourceKind::Unknown;
}

SourceText::SourceText(const QString& path, const QString& charset, std::uint64_t physicalMemory)
    : m_file(path, {.charset = charset,
                    .physicalMemory = physicalMemory,
                    .isWanted =
                        [](QStringView beginning) {
                            const SourceKind kind = sourceKindOf(beginning);
                            return kind == SourceKind::Feed || kind == SourceKind::Playlist;
                        }})
    , m_beginning(static_cast<qsizetype>(kBeginning), Qt::Uninitialized) {
    std::size_t filled = 0;
    while (filled + 4 <= kBeginning) {
        const std::size_t got = m_file.read({m_beginning.data() + filled, kBeginning - filled});
        if (got == 0) {
            break;
        }
        filled += got;
    }
    m_beginning.truncate(static_cast<qsizetype>(filled));
    m_hasText = filled > 0;
    m_kind = sourceKindOf(QString::fromUtf8(m_beginning));
}

SourceResult SourceText::result() const {
    switch (m_file.end()) {
    case FileEnd::NoFile:
        return SourceResult::NoFile;
    case FileEnd::TooLarge:
        return SourceResult::TooLarge;
    case FileEnd::NothingWanted:
        return SourceResult::Unknown;
    case FileEnd::CutShort:
    case FileEnd::Damaged:
        if (!m_hasText) {
            return SourceResult::Damaged;
        }
        break;
    case FileEnd::Complete:
        break;
    }
    switch (m_kind) {
    case SourceKind::Page:
        return SourceResult::Page;
    case SourceKind::Empty:
        return SourceResult::Empty;
    case SourceKind::Unknown:
        return SourceResult::Unknown;
    case SourceKind::Feed:
    case SourceKind::Playlist:
        break;
    }
    return m_file.end() == FileEnd::Complete ? SourceResult::Read : SourceResult::Incomplete;
}

std::size_t SourceText::read(std::span<char> room) {
    if (m_at == m_beginning.size()) {
        m_beginning.clear();
        m_at = 0;
        return m_file.read(room);
    }
    const std::size_t count = std::min(room.size(), static_cast<std::size_t>(m_beginning.size() - m_at));
    std::memcpy(room.data(), m_beginning.constData() + m_at, count);
    m_at += static_cast<qsizetype>(count);
    return count;
}

} // namespace guide
