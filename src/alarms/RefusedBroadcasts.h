#pragma once

#include "platform/Moment.h"
#include "platform/files/Folders.h"
#include "store/ShowDigest.h"

#include <QString>

#include <memory>
#include <mutex>
#include <unordered_map>

namespace guide {

/// The broadcasts for which the user wants no alarm from a rule, each until it is over, in a file of the
/// documents folder. A damaged file counts as empty. Any thread; changes wait for the disk.
class RefusedBroadcasts {
  public:
    using EndsByShow = std::unordered_map<ShowDigest, Moment, ShowDigestHash>;

    explicit RefusedBroadcasts(const Folders& folders);

    /// With the end of each; never null. Some may be over. The first call reads the file.
    std::shared_ptr<const EndsByShow> all() const;
    void refuse(const ShowDigest& show, Moment end, Moment now);
    /// The user wants an alarm again.
    void allow(const ShowDigest& show);

  private:
    void replace(EndsByShow ends);

    const QString m_path;
    const bool m_writable;
    /// Held during a change, so that files are written in the order of the changes. Queries do not wait for
    /// it.
    std::mutex m_changing;
    mutable std::mutex m_guard;
    mutable std::shared_ptr<const EndsByShow> m_ends; // guarded; null until it was read
};

} // namespace guide
