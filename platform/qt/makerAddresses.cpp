#include "platform/qt/makerAddresses.h"

namespace lexiform::qt {

MakerAddresses makerAddresses() {
    return {.updateManifest = LEXIFORM_UPDATE_MANIFEST,
            .downloadBase = LEXIFORM_DOWNLOAD_BASE,
            .updatesPage = LEXIFORM_UPDATES_PAGE,
            .supportPage = LEXIFORM_SUPPORT_PAGE};
}

} // namespace lexiform::qt
