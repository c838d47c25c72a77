#pragma once

#include <QString>

#include <optional>

namespace guide {

/// An address as it is shown and as it is kept secret.
struct SourceAddress {
    /// Without user, password, query, and parts of the path that are as long and random as a token.
    QString open;
    /// The whole address; empty when nothing of it is secret.
    QString secret;
};

/// Takes apart what was typed or dropped: a web address ("www.example.org/guide.xml" too), a "file:" address,
/// or a path. Nothing when it is neither, or empty. A path is made absolute from the working folder.
std::optional<SourceAddress> sourceAddress(const QString& typed);

bool isWebAddress(const QString& address);
/// The host of a web address; empty for a path.
QString hostOfAddress(const QString& address);
/// A name for a source: the host and the last part of the path, or the file's name without extensions.
QString nameOfAddress(const QString& openAddress);

} // namespace guide
