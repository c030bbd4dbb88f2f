#include "platform/qt/makerAddresses.h"

#include <QSslCertificate>
#include <QSslConfiguration>

namespace lexiform::qt {

// The program under test has its maker where its environment says, under an authority of the test's own.
MakerAddresses makerAddresses() {
    QSslConfiguration trusted = QSslConfiguration::defaultConfiguration();
    trusted.addCaCertificates(qEnvironmentVariable("LEXIFORM_TEST_AUTHORITY"));
    QSslConfiguration::setDefaultConfiguration(trusted);
    return {.updateManifest = qgetenv("LEXIFORM_TEST_MANIFEST").toStdString(),
            .downloadBase = "https://localhost/get/",
            .updatesPage = "https://localhost/updates",
            .supportPage = "https://localhost/support"};
}

} // namespace lexiform::qt
