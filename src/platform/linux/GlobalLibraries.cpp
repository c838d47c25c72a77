#include "platform/linux/GlobalLibraries.h"

#include <QtGlobal>

#include <curl/curl.h>
#include <libxml/parser.h>

namespace guide {

GlobalLibraries::GlobalLibraries() {
    if (curl_global_init(CURL_GLOBAL_DEFAULT) != CURLE_OK) {
        qFatal("libcurl cannot be initialised");
    }
    xmlInitParser();
}

GlobalLibraries::~GlobalLibraries() {
    xmlCleanupParser();
    curl_global_cleanup();
}

} // namespace guide
