#pragma once

#include "core/ObjectId.h"
#include "platform/Moment.h"
#include "text/Alphabet.h"

#include <QString>
#include <QUrl>

#include <atomic>
#include <optional>

namespace guide {

/// One broadcast of one channel.
///
/// The texts come in pairs: a source form with the suffix 1 (and `identificator`), which is stored, and a
/// display form, which the setter of the source form derives by the alphabet and the language, and which
/// setLanguage derives anew for all four. While it is being made, an entry belongs to one thread; once in a
/// list it is shared as a pointer to const and never changes, but for two derived values that are written
/// once.
class TVEntry {
  public:
    explicit TVEntry(const Alphabet& alphabet)
        : m_alphabet(&alphabet) {}
    /// A copy to be changed; the derived values are not taken along.
    TVEntry(const TVEntry& other);
    TVEntry& operator=(const TVEntry&) = delete;

    const ObjectId& channel() const { return m_channel; }
    void setChannel(const ObjectId& channel) { m_channel = channel; }

    const std::optional<Moment>& dateTime() const { return m_dateTime; }
    void setDateTime(std::optional<Moment> dateTime) { m_dateTime = dateTime; }
    const std::optional<Moment>& endDateTime() const { return m_endDateTime; }
    void setEndDateTime(std::optional<Moment> endDateTime) { m_endDateTime = endDateTime; }

    /// The source that supplied the show.
    const std::optional<QString>& sourceId() const { return m_sourceId; }
    void setSourceId(std::optional<QString> sourceId) { m_sourceId = std::move(sourceId); }
    /// The detail page of the show at its source.
    const std::optional<QUrl>& url() const { return m_url; }
    void setUrl(std::optional<QUrl> url) { m_url = std::move(url); }
    bool previouslyShown() const { return m_previouslyShown; }
    void setPreviouslyShown(bool previouslyShown) { m_previouslyShown = previouslyShown; }

    /// The title as the source gave it, less every pair of a backslash and an n.
    const std::optional<QString>& identificator() const { return m_identificator; }
    void setIdentificator(const std::optional<QString>& identificator);
    /// For comparisons; made when it is asked for.
    QString lowercasedIdentificator() const;

    const std::optional<QString>& instantDetails1() const { return m_instantDetails1; }
    void setInstantDetails1(std::optional<QString> instantDetails1);
    const std::optional<QString>& subtitle1() const { return m_subtitle1; }
    void setSubtitle1(std::optional<QString> subtitle1);
    const std::optional<QString>& instantDescription1() const { return m_instantDescription1; }
    void setInstantDescription1(std::optional<QString> instantDescription1);

    /// The display title: the subtitle for the one channel whose titles all say the same.
    const std::optional<QString>& title() const;
    const std::optional<QString>& instantDetails() const { return m_instantDetails; }
    const std::optional<QString>& subtitle() const { return m_subtitle; }
    const std::optional<QString>& instantDescription() const { return m_instantDescription; }

    const std::optional<QString>& language() const { return m_language; }
    void setLanguage(std::optional<QString> language);

    /// The details, subtitle and description that are there, joined by ", "; nothing when there is none.
    /// Made once and kept.
    std::optional<QString> fullInstantDetails() const;

    /// The stable URL of this broadcast in the application's scheme; nothing without a title. Made once and
    /// kept: a later call with another scheme answers the first one.
    std::optional<QUrl> urlDigestWithScheme(const QString& scheme) const;

  private:
    std::optional<QString> displayed(const std::optional<QString>& text) const;

    const Alphabet* m_alphabet;
    ObjectId m_channel{ObjectId::Bytes{}};
    std::optional<Moment> m_dateTime;
    std::optional<Moment> m_endDateTime;
    std::optional<QString> m_sourceId;
    std::optional<QUrl> m_url;
    bool m_previouslyShown = false;

    std::optional<QString> m_identificator;
    std::optional<QString> m_instantDetails1;
    std::optional<QString> m_subtitle1;
    std::optional<QString> m_instantDescription1;
    std::optional<QString> m_language;

    std::optional<QString> m_title;
    std::optional<QString> m_instantDetails;
    std::optional<QString> m_subtitle;
    std::optional<QString> m_instantDescription;

    struct Derived;
    mutable std::atomic<Derived*> m_derived{nullptr};
};

} // namespace guide
