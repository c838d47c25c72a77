#include "store/TVEntry.h"

#include "text/display/Transliteration.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// The channel whose shows all have the same title and differ in their subtitles.
const ObjectId& channelTitledBySubtitle() {
    static const ObjectId channel = ObjectId::fromHex(u"58f4ded60befe78cb336a80b"_s);
    return channel;
}

/// Publishes the value to all threads unless another thread was first; returns the published one.
template <class T>
const T& keptOnce(std::atomic<const T*>& place, T value) {
    const T* kept = nullptr;
    auto made = std::make_unique<const T>(std::move(value));
    if (place.compare_exchange_strong(kept, made.get(), std::memory_order_acq_rel,
                                      std::memory_order_acquire)) {
        kept = made.release();
    }
    return *kept;
}

} // namespace

TVEntry::TVEntry(const TVEntry& other)
    : m_alphabet(other.m_alphabet)
    , m_channel(other.m_channel)
    , m_previouslyShown(other.m_previouslyShown)
    , m_dateTime(other.m_dateTime)
    , m_endDateTime(other.m_endDateTime)
    , m_sourceId(other.m_sourceId)
    , m_language(other.m_language)
    , m_encodedUrl(other.m_encodedUrl)
    , m_facts(other.m_facts)
    , m_source(other.m_source)
    , m_display(other.m_display ? std::make_unique<Texts>(*other.m_display) : nullptr) {}

TVEntry::~TVEntry() {
    forgetDerived();
}

void TVEntry::forgetDerived() {
    if (m_fullInstantDetails.load(std::memory_order_relaxed) != nullptr) {
        delete m_fullInstantDetails.exchange(nullptr, std::memory_order_acquire);
    }
    if (m_digest.load(std::memory_order_relaxed) != nullptr) {
        delete m_digest.exchange(nullptr, std::memory_order_acquire);
    }
    if (m_urlDigest.load(std::memory_order_relaxed) != nullptr) {
        delete m_urlDigest.exchange(nullptr, std::memory_order_acquire);
    }
}

void TVEntry::setChannel(const ObjectId& channel) {
    m_channel = channel;
    forgetDerived();
}

void TVEntry::setDateTime(std::optional<Moment> dateTime) {
    m_dateTime = dateTime;
    forgetDerived();
}

std::optional<QUrl> TVEntry::url() const {
    return m_encodedUrl ? std::optional(QUrl(*m_encodedUrl)) : std::nullopt;
}

void TVEntry::setUrl(const std::optional<QUrl>& url) {
    m_encodedUrl = url && url->isValid() && !url->isEmpty() ? std::optional(url->toString(QUrl::FullyEncoded))
                                                            : std::nullopt;
}

void TVEntry::derive(std::optional<QString> Texts::* text) {
    static const QString kNoLanguage;
    forgetDerived();
    const std::optional<QString>& source = m_source.*text;
    std::optional<QString> shown;
    if (source) {
        shown = latin2Cyrillic(*source, m_language ? *m_language : kNoLanguage, *m_alphabet);
    }
    if (!m_display) {
        // A text that needs no conversion is returned as the same shared string.
        if (!source || shown->constData() == source->constData() || *shown == *source) {
            return;
        }
        m_display = std::make_unique<Texts>(m_source);
    }
    (*m_display).*text = std::move(shown);
}

void TVEntry::setIdentificator(std::optional<QString> identificator) {
    m_source.title = std::move(identificator);
    if (m_source.title && m_source.title->contains("\\n"_L1)) {
        m_source.title->remove("\\n"_L1);
    }
    derive(&Texts::title);
}

QString TVEntry::lowercasedIdentificator() const {
    return m_source.title.value_or(QString()).toLower();
}

void TVEntry::setInstantDetails1(std::optional<QString> instantDetails1) {
    m_source.instantDetails = std::move(instantDetails1);
    derive(&Texts::instantDetails);
}

void TVEntry::setSubtitle1(std::optional<QString> subtitle1) {
    m_source.subtitle = std::move(subtitle1);
    derive(&Texts::subtitle);
}

void TVEntry::setInstantDescription1(std::optional<QString> instantDescription1) {
    m_source.instantDescription = std::move(instantDescription1);
    derive(&Texts::instantDescription);
}

void TVEntry::setLanguage(std::optional<QString> language) {
    m_language = std::move(language);
    m_display.reset();
    setIdentificator(std::move(m_source.title));
    for (auto text : {&Texts::instantDetails, &Texts::subtitle, &Texts::instantDescription}) {
        derive(text);
    }
}

const std::optional<QString>& TVEntry::title() const {
    return m_channel == channelTitledBySubtitle() ? shown().subtitle : shown().title;
}

std::optional<QString> TVEntry::fullInstantDetails() const {
    if (const QString* kept = m_fullInstantDetails.load(std::memory_order_acquire)) {
        return *kept;
    }
    std::optional<QString> text = instantDetails();
    bool joined = false;
    for (const std::optional<QString>* part : {&subtitle(), &instantDescription()}) {
        if (!*part || (*part)->isEmpty()) {
            continue;
        }
        joined = text && !text->isEmpty();
        text = joined ? *text + ", "_L1 + **part : **part;
    }
    // A text that equals one of the parts is not worth caching.
    return joined ? keptOnce(m_fullInstantDetails, *std::move(text)) : text;
}

std::optional<ShowDigest> TVEntry::digest() const {
    if (const ShowDigest* kept = m_digest.load(std::memory_order_acquire)) {
        return *kept;
    }
    return m_source.title
               ? std::optional(keptOnce(m_digest, showDigest(m_channel, m_dateTime, *m_source.title)))
               : std::nullopt;
}

std::optional<QUrl> TVEntry::urlDigestWithScheme(const QString& scheme) const {
    if (const QUrl* kept = m_urlDigest.load(std::memory_order_acquire)) {
        return *kept;
    }
    const std::optional<ShowDigest> known = digest();
    return known ? std::optional(keptOnce(m_urlDigest, urlOfDigest(*known, scheme))) : std::nullopt;
}

} // namespace guide
