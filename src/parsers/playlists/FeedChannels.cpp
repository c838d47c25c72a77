#include "parsers/playlists/FeedChannels.h"

#include "parsers/xmltv/XMLSaxParser.h"

#include <QHash>

#include <array>
#include <string>

namespace guide {

namespace {

constexpr std::array kElements{"channel", "display-name"};
constexpr std::size_t kChannel = 0;
constexpr std::size_t kDisplayName = 1;

class Channels final : public XMLEvents {
  public:
    explicit Channels(int feed)
        : m_feed(feed) {}

    std::vector<FeedChannel>& found() { return m_found; }

  private:
    void started(std::size_t element, const XMLAttributes& attributes) override {
        if (element == kChannel) {
            const std::string_view id = attributes.value("id").value_or(std::string_view());
            const QString name = QString::fromUtf8(id.data(), static_cast<qsizetype>(id.size())).trimmed();
            m_inside = !name.isEmpty();
            if (!m_inside) {
                return;
            }
            const auto known = m_places.constFind(name);
            m_place = known == m_places.cend() ? m_found.size() : *known;
            if (known == m_places.cend()) {
                m_places.insert(name, m_place);
                m_found.push_back({name, {}, m_feed});
            }
        } else if (element == kDisplayName && m_inside) {
            m_reading = true;
            m_text.clear();
        }
    }

    void text(std::string_view piece) override {
        constexpr std::size_t kLongestName = 1'000;
        if (m_reading && m_text.size() + piece.size() <= kLongestName) {
            m_text += piece;
        }
    }

    void ended(std::size_t element) override {
        if (element == kChannel) {
            m_inside = false;
        } else if (element == kDisplayName && m_reading) {
            m_reading = false;
            QStringList& names = m_found[m_place].names;
            const QString name = QString::fromStdString(m_text).simplified();
            if (!name.isEmpty() && !names.contains(name)) {
                names << name;
            }
        }
    }

    const int m_feed;
    std::vector<FeedChannel> m_found;
    QHash<QString, std::size_t> m_places;
    std::size_t m_place = 0;
    bool m_inside = false;
    bool m_reading = false;
    std::string m_text;
};

} // namespace

std::vector<FeedChannel> feedChannels(const QByteArray& document, int feed) {
    Channels channels(feed);
    parseXML(document, kElements, channels);
    return std::move(channels.found());
}

} // namespace guide
