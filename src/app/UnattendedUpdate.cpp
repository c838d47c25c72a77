// An update without a window.

#include "app/QuellinGuideAppDelegate.h"

namespace guide {

void QuellinGuideAppDelegate::updateNow() {
    checkAndUpdateAllChannels();
    m_alarms.syncAlarms();
}

void QuellinGuideAppDelegate::updateUnattended(std::function<void(const UnattendedUpdate&)> ended) {
    m_unattended = UnattendedUpdate{};
    const auto whileAlive = [alive = std::weak_ptr(m_alive)](Block step) -> Block {
        return [alive, step = std::move(step)] {
            if (!alive.expired()) {
                step();
            }
        };
    };
    const Block synchronise = whileAlive([this, whileAlive, ended = std::move(ended)] {
        m_alarms.syncAlarms();
        m_alarms.whenIdle(whileAlive([this, ended] {
            for (const ObjectId& channel : m_unattended->stored) {
                m_unattended->failed.erase(channel);
            }
            if (m_unattended->hasHeldBack) {
                // The next window makes the run again, and asks.
                m_alarms.setSynchronized(false);
            }
            ended(*m_unattended);
        }));
    });
    m_cloudSync->cloudDidChangeExternally({});
    // Both start at once; their lists reach the alarms before these blocks.
    checkAndUpdateAllChannels();
    m_updateCycle->whenIdle(whileAlive([this, synchronise] {
        if (m_ownSourceUpdates) {
            m_ownSourceUpdates->whenIdle(synchronise);
        } else {
            synchronise();
        }
    }));
}

} // namespace guide
