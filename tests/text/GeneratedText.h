#pragma once

#include <QList>
#include <QString>

#include <random>

namespace guide {

/// Random texts composed of pieces, the same in every run.
class GeneratedText {
  public:
    explicit GeneratedText(QList<QString> pieces, unsigned seed = 1)
        : m_random(seed)
        , m_pieces(std::move(pieces)) {}

    const QString& piece() { return m_pieces[static_cast<qsizetype>(below(m_pieces.size()))]; }
    QString text(unsigned mostPieces) {
        QString made;
        for (unsigned left = below(mostPieces + 1); left > 0; --left) {
            made += piece();
        }
        return made;
    }
    template <class Count>
    unsigned below(Count bound) {
        return static_cast<unsigned>(m_random() % static_cast<unsigned>(bound));
    }

  private:
    std::mt19937 m_random;
    QList<QString> m_pieces;
};

} // namespace guide
