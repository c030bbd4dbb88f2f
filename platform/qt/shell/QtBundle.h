#pragma once

#include "ports/Bundle.h"

#include <QString>

namespace lexiform::qt {

/// The program as it is installed: its version, and a folder of resources.
class QtBundle : public Bundle {
public:
    QtBundle(const QString& version, QString resources);

    [[nodiscard]] std::optional<InfoDictionary> infoDictionary() const override { return information_; }
    [[nodiscard]] std::optional<std::string> urlForResource(std::string_view name,
                                                            std::string_view extension) const override;

private:
    InfoDictionary information_;
    QString resources_;
};

/// Where an installation keeps its resources: beside the folder of the running program.
[[nodiscard]] QString resourceFolder();

} // namespace lexiform::qt
