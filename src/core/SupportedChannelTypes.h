#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace guide {

struct SupportedChannelTypesPair {
    QString language;
    QString region;

    friend bool operator==(const SupportedChannelTypesPair&, const SupportedChannelTypesPair&) = default;
};

/// The pairs of language and region that this build supports; the first one is the home pair.
class SupportedChannelTypes {
  public:
    SupportedChannelTypes() = default;
    explicit SupportedChannelTypes(std::vector<SupportedChannelTypesPair> pairs)
        : m_pairs(std::move(pairs)) {}

    /// Reads "supported-channel-types.json": an array of objects with "language" and "region". Without a
    /// readable file there are no pairs, and the log says so.
    static SupportedChannelTypes fromFile(const QString& path);
    /// Nothing when the text is not such an array.
    static std::optional<SupportedChannelTypes> fromJson(const QByteArray& json);

    const std::vector<SupportedChannelTypesPair>& pairs() const { return m_pairs; }

  private:
    std::vector<SupportedChannelTypesPair> m_pairs;
};

} // namespace guide
