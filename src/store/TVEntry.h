#pragma once

#include "core/ObjectId.h"
#include "platform/Moment.h"
#include "store/ShowDigest.h"
#include "text/display/Alphabet.h"
#include "text/facts/ShowFacts.h"

#include <QString>
#include <QUrl>

#include <atomic>
#include <memory>
#include <optional>

namespace guide {

/// One broadcast of one channel.
///
/// The texts come in pairs: a source form with the suffix 1 (and `identificator`), which is stored, and a
/// display form, which the setter of the source form derives from the alphabet and the language.
/// setLanguage() derives all four again. An entry belongs to one thread until it is in a list; then it is
/// shared as a pointer to const, and only its cached values are still written, once each.
class TVEntry {
  public:
    /// The alphabet must outlive the entry.
    explicit TVEntry(const Alphabet& alphabet)
        : m_alphabet(&alphabet) {}
    /// For a copy that is to be changed; cached values are not copied.
    TVEntry(const TVEntry& other);
    TVEntry& operator=(const TVEntry&) = delete;
    ~TVEntry();

    const ObjectId& channel() const { return m_channel; }
    void setChannel(const ObjectId& channel);

    const std::optional<Moment>& dateTime() const { return m_dateTime; }
    void setDateTime(std::optional<Moment> dateTime);
    const std::optional<Moment>& endDateTime() const { return m_endDateTime; }
    void setEndDateTime(std::optional<Moment> endDateTime) { m_endDateTime = endDateTime; }

    /// The source that supplied the show.
    const std::optional<QString>& sourceId() const { return m_sourceId; }
    void setSourceId(std::optional<QString> sourceId) { m_sourceId = std::move(sourceId); }
    /// The page with the show's details. Stored as encoded text, which takes less memory in a long list.
    std::optional<QUrl> url() const;
    /// An empty or invalid URL counts as unset.
    void setUrl(const std::optional<QUrl>& url);
    const std::optional<QString>& encodedUrl() const { return m_encodedUrl; }
    void setEncodedUrl(std::optional<QString> url) { m_encodedUrl = std::move(url); }
    bool previouslyShown() const { return m_previouslyShown; }
    void setPreviouslyShown(bool previouslyShown) { m_previouslyShown = previouslyShown; }

    /// What the source says beside the texts; null when it says nothing. Shared by copies.
    const std::shared_ptr<const ShowFacts>& facts() const { return m_facts; }
    void setFacts(std::shared_ptr<const ShowFacts> facts) { m_facts = std::move(facts); }

    /// The title as the source gave it, without any backslash followed by an n.
    const std::optional<QString>& identificator() const { return m_source.title; }
    void setIdentificator(std::optional<QString> identificator);
    /// For comparisons. Not cached.
    QString lowercasedIdentificator() const;

    const std::optional<QString>& instantDetails1() const { return m_source.instantDetails; }
    void setInstantDetails1(std::optional<QString> instantDetails1);
    const std::optional<QString>& subtitle1() const { return m_source.subtitle; }
    void setSubtitle1(std::optional<QString> subtitle1);
    const std::optional<QString>& instantDescription1() const { return m_source.instantDescription; }
    void setInstantDescription1(std::optional<QString> instantDescription1);

    /// The display title; the subtitle for the one channel whose titles are all the same.
    const std::optional<QString>& title() const;
    const std::optional<QString>& instantDetails() const { return shown().instantDetails; }
    const std::optional<QString>& subtitle() const { return shown().subtitle; }
    const std::optional<QString>& instantDescription() const { return shown().instantDescription; }

    const std::optional<QString>& language() const { return m_language; }
    void setLanguage(std::optional<QString> language);

    /// The details, subtitle and description that are set, joined by ", "; unset when none is. Cached.
    std::optional<QString> fullInstantDetails() const;

    /// Unset without a title. Cached.
    std::optional<ShowDigest> digest() const;
    /// The stable URL of this broadcast in the application's scheme; unset without a title. Cached: a later
    /// call with another scheme returns the first URL.
    std::optional<QUrl> urlDigestWithScheme(const QString& scheme) const;

    /// False for a show without an end.
    bool endsAfter(Moment now) const { return m_endDateTime && *m_endDateTime > now; }
    /// True for a show that ended before the moment or has no end.
    bool overAt(Moment now) const { return !m_endDateTime || *m_endDateTime < now; }

  private:
    struct Texts {
        std::optional<QString> title;
        std::optional<QString> instantDetails;
        std::optional<QString> subtitle;
        std::optional<QString> instantDescription;
    };

    const Texts& shown() const { return m_display ? *m_display : m_source; }
    void derive(std::optional<QString> Texts::* text);
    void forgetDerived();

    const Alphabet* m_alphabet;
    ObjectId m_channel{ObjectId::Bytes{}};
    bool m_previouslyShown = false;
    std::optional<Moment> m_dateTime;
    std::optional<Moment> m_endDateTime;
    std::optional<QString> m_sourceId;
    std::optional<QString> m_language;
    std::optional<QString> m_encodedUrl;
    std::shared_ptr<const ShowFacts> m_facts;
    Texts m_source;
    /// Null when the display forms equal the source forms.
    std::unique_ptr<Texts> m_display;

    mutable std::atomic<const QString*> m_fullInstantDetails{nullptr};
    mutable std::atomic<const ShowDigest*> m_digest{nullptr};
    mutable std::atomic<const QUrl*> m_urlDigest{nullptr};
};

} // namespace guide
