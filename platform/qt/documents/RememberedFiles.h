#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>

namespace lexiform::qt {

/// The files of earlier runs: those opened last, and those open at the end. Other instances of the program
/// may change them at any time; a damaged or absent store counts as an empty one.
class RememberedFiles {
public:
    static constexpr qsizetype mostRecent = 10;

    /// Keeps them in the INI file at `path`, which is made on the first change.
    explicit RememberedFiles(const QString& path);

    /// The latest first; those that are gone from the disk are left out.
    [[nodiscard]] QStringList recent() const;
    void noteOpened(const QString& path);
    void clearRecent();

    /// Whether the program, started without a file, opens again what was open at its end; false at first.
    [[nodiscard]] bool reopens() const;
    void setReopens(bool reopens);

    /// Those that were open at the end of a run and still exist.
    [[nodiscard]] QStringList session() const;
    void setSession(const QStringList& paths);

private:
    [[nodiscard]] QStringList existing(const QString& key) const;

    mutable QSettings settings_; // reading takes up what other instances wrote
};

} // namespace lexiform::qt
