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

void StepSchedule::addFirst(std::vector<UpdateStep> steps) {
    m_nodes.reserve(m_nodes.size() + steps.size());
    ++m_plans;
    for (UpdateStep& step : steps) {
        const std::size_t index = m_nodes.size();
        Node node;
        node.plan = -m_plans;
        node.step = std::move(step);
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
            node.waiting += line.next == line.steps.size() ? 0 : 1;
            line.steps.push_back(index);
        }
        node.needed = node.channels.size();
        const bool isReady = node.waiting == 0;
        m_nodes.push_back(std::move(node));
        if (isReady) {
            m_ready.insert(rankOf(index));
        }
    }
}

bool StepSchedule::hasStepsFor(const ObjectId& channel) const {
    const auto line = m_lines.find(channel);
    return line != m_lines.end() && line->second.next < line->second.steps.size();
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
                                   [this](const Rank& rank) { return areIdle(m_nodes[rank.second].hosts); });
    if (next == m_ready.end()) {
        return std::nullopt;
    }
    const std::size_t index = next->second;
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
        if (line.next == line.steps.size() || line.steps[line.next] != index) {
            continue; // released
        }
        if (++line.next < line.steps.size()) {
            const std::size_t following = line.steps[line.next];
            if (--m_nodes[following].waiting == 0) {
                m_ready.insert(rankOf(following));
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
            m_ready.erase(rankOf(index));
        } else if (node.waiting == 0 && !node.isRunning) {
            m_ready.insert(rankOf(index));
        }
    }
    line.next = line.steps.size();
}

} // namespace guide
