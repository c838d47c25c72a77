#include "store/ShowCoding.h"

#include "platform/archive/KeyedArchiver.h"
#include "platform/files/FileContent.h"

#include <QDebug>

#include <algorithm>
#include <array>
#include <cmath>

namespace guide {

namespace {

/// Stars are stored in thousandths.
constexpr double kPerStar = 1000;
/// No rating counts further.
constexpr double kMostStars = 1'000'000;

bool isRating(const StarRating& rating) {
    return rating.value >= 0 && rating.value <= kMostStars && rating.most > 0 && rating.most <= kMostStars;
}

void encodeFacts(KeyedArchiver& archiver, const ShowFacts& facts) {
    archiver.key("facts");
    archiver.beginRecord();
    archiver.encode("originalTitle", facts.originalTitle);
    archiver.encode("season", facts.episode.season);
    archiver.encode("episode", facts.episode.episode);
    archiver.encode("episodes", facts.episode.episodes);
    archiver.encode("part", facts.episode.part);
    archiver.encode("parts", facts.episode.parts);
    archiver.encode("year", facts.year);
    if (!facts.countries.empty()) {
        archiver.key("countries");
        archiver.beginArray(facts.countries.size());
        for (const QString& country : facts.countries) {
            archiver.append(country);
        }
    }
    archiver.encode("ageRating", facts.ageRating);
    if (facts.starRating && isRating(*facts.starRating)) {
        archiver.encode("stars", std::llround(facts.starRating->value * kPerStar));
        archiver.encode("mostStars", std::llround(facts.starRating->most * kPerStar));
    }
    if (facts.newness != Newness::Unknown) {
        archiver.encode("new", facts.newness == Newness::New);
    }
    archiver.endRecord();
}

void encode(KeyedArchiver& archiver, const TVEntry& entry) {
    archiver.beginRecord();
    archiver.encode("channel", entry.channel().bytes());
    archiver.encode("realChannelId", entry.sourceId());
    archiver.encode("lang", entry.language());
    archiver.encode("dateTime", entry.dateTime());
    archiver.encode("endDateTime", entry.endDateTime());
    archiver.encode("title", entry.identificator());
    archiver.encode("instantDetails", entry.instantDetails1());
    archiver.encode("subtitle", entry.subtitle1());
    archiver.encode("instantDescription", entry.instantDescription1());
    archiver.encode("url", entry.encodedUrl());
    archiver.encode("previouslyShown", entry.previouslyShown());
    if (entry.facts() && !entry.facts()->empty()) {
        encodeFacts(archiver, *entry.facts());
    }
    archiver.endRecord();
}

void encode(KeyedArchiver& archiver, const TVEntrySupplementalData& details) {
    archiver.beginRecord();
    archiver.encode("description", details.description);
    archiver.encode("episodeDescription", details.episodeDescription);
    archiver.encode("details", details.details);
    archiver.encode("directedBy", details.directedBy);
    archiver.encode("roles", details.roles);
    archiver.encode("imdbURL", details.imdbURL);
    archiver.encode("trailerURL", details.trailerURL);
    archiver.encode("lang", details.language);
    archiver.endRecord();
}

/// Reads the shows of one archive and shares the texts that they have in common.
class ShowDecoder {
  public:
    ShowDecoder(KeyedUnarchiver& unarchiver, const Alphabet& alphabet)
        : m_unarchiver(unarchiver)
        , m_alphabet(alphabet) {}

    /// Reads one show; nothing when it has no title or no start, or when reading fails.
    std::optional<ShowItem> decode() {
        constexpr std::size_t kMostParts = 4;
        const std::size_t count = m_unarchiver.array();
        std::shared_ptr<const TVEntry> entry;
        std::optional<TVListingsCategory> categories;
        std::shared_ptr<const TVEntrySupplementalData> details;
        PictureURLs pictures;
        if (count > 0) {
            entry = decodeEntry();
        }
        if (count > 1) {
            m_unarchiver.decode(categories);
        }
        if (count > 2) {
            details = decodeDetails();
        }
        if (count > 3) {
            pictures = decodePictures();
        }
        for (std::size_t i = kMostParts; i < count && !m_unarchiver.failed(); ++i) {
            m_unarchiver.skip();
        }
        if (!entry || m_unarchiver.failed()) {
            return std::nullopt;
        }
        return ShowItem(std::move(entry), categories, std::move(details), std::move(pictures));
    }

  private:
    std::shared_ptr<const TVEntry> decodeEntry() {
        ObjectId::Bytes channel{};
        std::optional<QString> sourceId;
        std::optional<QString> language;
        std::optional<Moment> dateTime;
        std::optional<Moment> endDateTime;
        std::optional<QString> title;
        std::optional<QString> instantDetails;
        std::optional<QString> subtitle;
        std::optional<QString> instantDescription;
        std::optional<QString> url;
        bool previouslyShown = false;
        std::shared_ptr<const ShowFacts> facts;

        const auto readChannel = [&](KeyedUnarchiver& unarchiver) {
            if (unarchiver.kind() == KeyedUnarchiver::Kind::Text) {
                // The format of older files.
                QString hex;
                unarchiver.decode(hex);
                channel = ObjectId::fromHex(hex).bytes();
            } else {
                unarchiver.decode(channel);
            }
        };
        const auto readSourceId = [&](KeyedUnarchiver& unarchiver) {
            unarchiver.decode(m_sourceId);
            sourceId = m_sourceId.text;
        };
        const auto readLanguage = [&](KeyedUnarchiver& unarchiver) {
            unarchiver.decode(m_language);
            language = m_language.text;
        };
        const auto readFacts = [&](KeyedUnarchiver&) { facts = decodeFacts(); };
        m_unarchiver.record(field("channel", readChannel), field("realChannelId", readSourceId),
                            field("lang", readLanguage), field("dateTime", dateTime),
                            field("endDateTime", endDateTime), field("title", title),
                            field("instantDetails", instantDetails), field("subtitle", subtitle),
                            field("instantDescription", instantDescription), field("url", url),
                            field("previouslyShown", previouslyShown), field("facts", readFacts));
        if (!title || !dateTime || m_unarchiver.failed()) {
            return nullptr;
        }
        auto entry = std::make_shared<TVEntry>(m_alphabet);
        entry->setChannel(ObjectId(channel));
        entry->setSourceId(std::move(sourceId));
        entry->setLanguage(std::move(language));
        entry->setDateTime(dateTime);
        entry->setEndDateTime(endDateTime);
        entry->setIdentificator(std::move(title));
        entry->setInstantDetails1(std::move(instantDetails));
        entry->setSubtitle1(std::move(subtitle));
        entry->setInstantDescription1(std::move(instantDescription));
        entry->setEncodedUrl(std::move(url));
        entry->setPreviouslyShown(previouslyShown);
        entry->setFacts(std::move(facts));
        return entry;
    }

    std::shared_ptr<const ShowFacts> decodeFacts() {
        ShowFacts facts;
        std::int64_t stars = 0;
        std::int64_t mostStars = 0;
        std::optional<bool> isNew;
        const auto readCountries = [&](KeyedUnarchiver& unarchiver) {
            const std::size_t count = unarchiver.array();
            for (std::size_t i = 0; i < count && !unarchiver.failed(); ++i) {
                unarchiver.decode(m_country);
                facts.countries.push_back(m_country.text);
            }
        };
        const auto readAge = [&](KeyedUnarchiver& unarchiver) {
            unarchiver.decode(m_ageRating);
            facts.ageRating = m_ageRating.text;
        };
        m_unarchiver.record(field("originalTitle", facts.originalTitle),
                            field("season", facts.episode.season), field("episode", facts.episode.episode),
                            field("episodes", facts.episode.episodes), field("part", facts.episode.part),
                            field("parts", facts.episode.parts), field("year", facts.year),
                            field("countries", readCountries), field("ageRating", readAge),
                            field("stars", stars), field("mostStars", mostStars), field("new", isNew));
        if (m_unarchiver.failed()) {
            return nullptr;
        }
        if (const StarRating rating{static_cast<double>(stars) / kPerStar,
                                    static_cast<double>(mostStars) / kPerStar};
            isRating(rating)) {
            facts.starRating = rating;
        }
        if (isNew) {
            facts.newness = *isNew ? Newness::New : Newness::Repeat;
        }
        return shared(std::move(facts));
    }

    /// Most shows with few facts have those of a show shortly before.
    std::shared_ptr<const ShowFacts> shared(ShowFacts facts) {
        if (facts.empty()) {
            return nullptr;
        }
        for (const auto& known : m_knownFacts) {
            if (known && *known == facts) {
                return known;
            }
        }
        auto& place = m_knownFacts[m_nextFacts++ % m_knownFacts.size()];
        place = std::make_shared<const ShowFacts>(std::move(facts));
        return place;
    }

    std::shared_ptr<const TVEntrySupplementalData> decodeDetails() {
        auto details = std::make_shared<TVEntrySupplementalData>();
        const auto readLanguage = [&](KeyedUnarchiver& unarchiver) {
            unarchiver.decode(m_language);
            details->language = m_language.text;
        };
        m_unarchiver.record(field("description", details->description),
                            field("episodeDescription", details->episodeDescription),
                            field("details", details->details), field("directedBy", details->directedBy),
                            field("roles", details->roles), field("imdbURL", details->imdbURL),
                            field("trailerURL", details->trailerURL), field("lang", readLanguage));
        return details;
    }

    PictureURLs decodePictures() {
        PictureURLs pictures;
        const std::size_t count = m_unarchiver.array();
        for (std::size_t i = 0; i < count && !m_unarchiver.failed(); ++i) {
            pictures.insertEncoded(m_unarchiver.textBytes());
        }
        return pictures;
    }

    KeyedUnarchiver& m_unarchiver;
    const Alphabet& m_alphabet;
    RepeatedText m_sourceId;
    RepeatedText m_language;
    RepeatedText m_country;
    RepeatedText m_ageRating;
    std::array<std::shared_ptr<const ShowFacts>, 8> m_knownFacts;
    std::size_t m_nextFacts = 0;
};

/// Far more than the file of any list that fits in memory.
constexpr qint64 kMostBytes = 256 << 20;

} // namespace

QByteArray archivedShows(std::span<const ShowItem> shows) {
    KeyedArchiver archiver;
    archiver.beginArray(shows.size());
    for (const ShowItem& show : shows) {
        const int elements = show.elementCount();
        archiver.beginArray(static_cast<std::size_t>(elements));
        encode(archiver, *show.entry());
        if (elements > 1) {
            archiver.append(*show.categories());
        }
        if (elements > 2) {
            encode(archiver, *show.details());
        }
        if (elements > 3) {
            archiver.beginArray(static_cast<std::size_t>(show.pictures().size()));
            for (const QByteArray& picture : show.pictures().encoded()) {
                archiver.appendText(picture);
            }
        }
    }
    return std::move(archiver).finish();
}

std::optional<ShowItems> unarchivedShows(QByteArrayView archive, const Alphabet& alphabet) {
    KeyedUnarchiver unarchiver(archive);
    ShowDecoder decoder(unarchiver, alphabet);
    ShowItems shows;
    const std::size_t count = unarchiver.array();
    shows.reserve(count);
    for (std::size_t i = 0; i < count && !unarchiver.failed(); ++i) {
        if (std::optional<ShowItem> show = decoder.decode()) {
            shows.push_back(*std::move(show));
        }
    }
    if (!unarchiver.finished()) {
        return std::nullopt;
    }
    const auto earlier = [](const ShowItem& a, const ShowItem& b) {
        return a.entry()->dateTime() < b.entry()->dateTime();
    };
    if (!std::is_sorted(shows.begin(), shows.end(), earlier)) {
        std::stable_sort(shows.begin(), shows.end(), earlier);
    }
    return shows;
}

std::optional<ShowItems> unarchivedShowsOfFile(const QString& path, const Alphabet& alphabet) {
    const std::optional<QByteArray> content = fileContent(path, kMostBytes);
    if (!content) {
        return std::nullopt;
    }
    std::optional<ShowItems> shows = unarchivedShows(*content, alphabet);
    if (!shows) {
        qWarning().noquote() << "TVListings: no list of shows in" << path;
    }
    return shows;
}

} // namespace guide
