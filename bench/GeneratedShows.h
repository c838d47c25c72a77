#pragma once

#include "store/ChannelList.h"
#include "store/ShowItem.h"

#include <QStringList>

#include <memory>
#include <random>
#include <vector>

namespace guide::bench {

using namespace Qt::StringLiterals;

inline constexpr int kShowsPerList = 280;
/// Start of the first show of a list.
inline constexpr Moment kNow = std::chrono::sys_days{std::chrono::year{2040} / 1 / 2};

const Alphabet& alphabet();
ObjectId channelNumbered(int number);

/// Words with the lengths and letters of real descriptions; the same in every run.
class Words {
  public:
    explicit Words(unsigned seed)
        : m_random(seed) {
        const QString letters = u"aeiouyáéíóúabcdefghijklmnoprstuvzžščřďťňľ"_s;
        for (int i = 0; i < 6000; ++i) {
            QString word;
            for (unsigned length = 2 + m_random() % 4 + m_random() % 6; length > 0; --length) {
                word += letters[static_cast<qsizetype>(m_random() % static_cast<unsigned>(letters.size()))];
            }
            m_words += word;
        }
    }
    QString text(int words) {
        QString text;
        for (int i = 0; i < words; ++i) {
            text += (i == 0 ? u""_s : u" "_s) + word();
        }
        text[0] = text[0].toUpper();
        return text;
    }
    unsigned below(unsigned bound) { return m_random() % bound; }
    const QString& word(qsizetype number) const { return m_words[number]; }

  private:
    /// A few words are common, most are not.
    const QString& word() {
        const unsigned common = m_random() % 3;
        return m_words[static_cast<qsizetype>(m_random() % (common == 0 ? 40u : 6000u))];
    }

    std::mt19937 m_random;
    QStringList m_words;
};

/// The list of one channel, without gaps from kNow on.
std::vector<ExtendedTVEntry> generatedShows(int channel, Words& words);
ShowItems itemsOf(std::vector<ExtendedTVEntry> shows);
std::shared_ptr<const ChannelList> generatedList(int channel, Words& words);

} // namespace guide::bench
