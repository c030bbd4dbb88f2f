#pragma once

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace lexiform::qt {

/// A certificate that is its own authority, made anew by openssl, for whoever serves under one address.
class TestCertificate {
public:
    /// `name` as openssl writes it, such as "IP:127.0.0.1".
    explicit TestCertificate(const QString& name) {
        const QString keyFile = folder_.filePath("key.pem");
        const QString certificateFile = folder_.filePath("certificate.pem");
        const QStringList arguments = {"req",
                                       "-x509",
                                       "-newkey",
                                       "ec",
                                       "-pkeyopt",
                                       "ec_paramgen_curve:prime256v1",
                                       "-nodes",
                                       "-days",
                                       "2",
                                       "-subj",
                                       "/CN=Test authority",
                                       "-addext",
                                       "subjectAltName=" + name,
                                       "-keyout",
                                       keyFile,
                                       "-out",
                                       certificateFile};
        EXPECT_EQ(
            QProcess::execute("sh", QStringList{"-c", "exec openssl \"$@\" 2>/dev/null", "sh"} + arguments),
            0);
        QFile key(keyFile);
        EXPECT_TRUE(key.open(QIODevice::ReadOnly));
        key_ = QSslKey(&key, QSsl::Ec);
        certificate_ = QSslCertificate::fromPath(certificateFile).value(0);
    }

    [[nodiscard]] QSslConfiguration forServer() const {
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(certificate_);
        configuration.setPrivateKey(key_);
        return configuration;
    }

    [[nodiscard]] const QSslCertificate& certificate() const { return certificate_; }

private:
    QTemporaryDir folder_;
    QSslKey key_;
    QSslCertificate certificate_;
};

/// For its lifetime every request of this process trusts one more authority.
class TrustedAuthority {
public:
    explicit TrustedAuthority(const QSslCertificate& authority) {
        QSslConfiguration trusting = before_;
        trusting.addCaCertificate(authority);
        QSslConfiguration::setDefaultConfiguration(trusting);
    }
    ~TrustedAuthority() { QSslConfiguration::setDefaultConfiguration(before_); }
    TrustedAuthority(const TrustedAuthority&) = delete;
    TrustedAuthority& operator=(const TrustedAuthority&) = delete;

private:
    QSslConfiguration before_ = QSslConfiguration::defaultConfiguration();
};

} // namespace lexiform::qt
