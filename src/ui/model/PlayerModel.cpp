#include "ui/model/PlayerModel.h"

#include "ui/look/PictureUrl.h"

namespace guide {

PlayerModel::PlayerModel(PlayerContent& content)
    : m_content(content) {
    m_content.setObserver(this);
}

PlayerModel::~PlayerModel() {
    m_content.setVideoOutput(nullptr);
    m_content.setObserver(nullptr);
}

QUrl PlayerModel::icon() const {
    return pictureUrlOf(m_content.state().icon);
}

} // namespace guide
