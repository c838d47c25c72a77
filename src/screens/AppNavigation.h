#pragma once

#include "screens/kit/Alert.h"
#include "screens/kit/FileChooser.h"
#include "screens/kit/Notice.h"
#include "screens/kit/TabBarController.h"

#include <QString>
#include <QUrl>

#include <vector>

namespace guide {

/// What screens open or show outside themselves. Main queue.
class AppNavigation {
  public:
    virtual ~AppNavigation() = default;
    /// Opens a live stream.
    virtual void playURL(const QUrl& url) = 0;
    /// Opens a page of the web. Does nothing unless the URL is http or https.
    virtual void openWebPage(const QUrl& url, const QString& title) = 0;
    /// Opens the pictures of a show at full size.
    virtual void showPictures(const std::vector<QUrl>& urls) = 0;
    /// Shows the alert after those that are already waiting.
    virtual void presentAlert(Alert alert) = 0;
    /// Shows the notice after those that are already waiting.
    virtual void presentNotice(Notice notice) = 0;
    /// Shows a folder of this device in the program that the desktop has for folders.
    virtual void openFolder(const QString& path) = 0;
    /// Lets the user choose a file or a folder.
    virtual void presentFileChooser(FileChooser chooser) = 0;
    /// Selects the tab with this symbol. Does nothing when there is none.
    virtual void selectTab(Symbol tab) = 0;
};

} // namespace guide
