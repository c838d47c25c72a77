#pragma once

#include "platform/encoding/TextSource.h"

#include <QByteArray>

#include <algorithm>

namespace guide::test {

/// A text that comes in pieces of the same size.
class PiecewiseText final : public TextSource {
  public:
    PiecewiseText(QByteArrayView text, std::size_t piece)
        : m_rest(text)
        , m_piece(piece) {}

    std::size_t read(std::span<char> room) override {
        const std::size_t count = std::min({room.size(), m_piece, static_cast<std::size_t>(m_rest.size())});
        std::copy_n(m_rest.data(), count, room.data());
        m_rest = m_rest.sliced(static_cast<qsizetype>(count));
        return count;
    }

  private:
    QByteArrayView m_rest;
    const std::size_t m_piece;
};

} // namespace guide::test
