#include "app/StepSchedule.h"

#include <algorithm>
#include <utility>

namespace guide {

namespace {

/// Scheme, host and port: what a connection is made to.
QString hostOf(const QUrl& url) {
    return url.scheme() + QLatin1StringView("://") + url.host() + QLatin1Char(':') +
           QString::number(url.port());
}

template <class Value>
void appendNew(std::vector<Value>& values, Value value) {
    if (std::find(values.begin(), values.end(), value) == values.end()) {
        values.push_back(std::move(value));
    }
}

} // namespace

StepSchedule::StepSchedule(std::vector<UpdateStep> steps) {
    m_nodes.reserve(steps.size());
    for (std::size_t index = 0; index < steps.size(); ++index) {
        Node node;
        node.step = std::move(steps[index]);
        for (const QUrl& url : node.step.urls) {
            appendNew(node.hosts, hostOf(url));
        }
        for (const UpdateStep::Served& served : node.step.served) {
            // All pairs of one channel are adjacent.
            if (!node.channels.empty() && node.channels.back() == served.channel) {
                continue;
            }
            node.channels.push_back(served.channel);
            Line& line = m_lines[served.channel];
            node.waiting += line.steps.empty() ? 0 : 1;
            line.steps.push_back(index);
        }
        node.needed = node.channels.size();
        if (node.waiting == 0) {
            m_ready.insert(index);
        }
        m_nodes.push_back(std::move(node));
    }
}

bool StepSchedule::areIdle(const std::vector<QString>& hosts) const {
    return std::none_of(hosts.begin(), hosts.end(),
                        [this](const QString& host) { return m_busyHosts.contains(host); });
}

std::optional<std::size_t> StepSchedule::start() {
    if (m_running == kMostRunning) {
        return std::nullopt;
    }
    const auto next = std::find_if(m_ready.begin(), m_ready.end(),
                                   [this](std::size_t index) { return areIdle(m_nodes[index].hosts); });
    if (next == m_ready.end()) {
        return std::nullopt;
    }
    const std::size_t index = *next;
    m_ready.erase(next);
    Node& node = m_nodes[index];
    node.isRunning = true;
    m_busyHosts.insert(node.hosts.begin(), node.hosts.end());
    ++m_running;
    return index;
}

void StepSchedule::finish(std::size_t index) {
    Node& node = m_nodes[index];
    node.isRunning = false;
    for (const QString& host : node.hosts) {
        m_busyHosts.erase(host);
    }
    --m_running;
    for (const ObjectId& channel : node.channels) {
        Line& line = m_lines.at(channel);
        if (line.next == line.steps.size()) {
            continue; // released
        }
        if (++line.next < line.steps.size()) {
            const std::size_t following = line.steps[line.next];
            if (--m_nodes[following].waiting == 0) {
                m_ready.insert(following);
            }
        }
    }
}

void StepSchedule::release(const ObjectId& channel) {
    const auto found = m_lines.find(channel);
    if (found == m_lines.end()) {
        return;
    }
    Line& line = found->second;
    for (std::size_t place = line.next; place < line.steps.size(); ++place) {
        const std::size_t index = line.steps[place];
        Node& node = m_nodes[index];
        node.waiting -= place == line.next ? 0 : 1;
        if (--node.needed == 0) {
            m_ready.erase(index);
        } else if (node.waiting == 0 && !node.isRunning) {
            m_ready.insert(index);
        }
    }
    line.next = line.steps.size();
}

} // namespace guide
