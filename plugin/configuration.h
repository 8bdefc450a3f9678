#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

class QSettings;

/// What the INI file puts in force. A key that is missing has its default.
///
/// Numbers and booleans are read as QVariant converts the text: what is no number is 0, and of
/// booleans only an empty value, "0" and "false" are false. A text with an unquoted comma is a list
/// to QSettings and reads as empty.
struct Configuration {
    bool enabled = true; ///< `enabled`: whether the plugin works at all
    unsigned int tickMilliseconds = 60000; ///< `timerInterval` in seconds, times 1000 in 32 bits
    unsigned int syncInterval = 60; ///< `syncInterval`: ticks between regular synchronisations
    bool testMode = false; ///< `testMode`: people are only logged, not written
    QString importFile; ///< `importFile`: path of the HR export, empty for the default
    bool deleteFile = true; ///< `deleteFile`: remove the export after it was read
    QString syncCommand; ///< `syncCommand`: command line that writes the export
    unsigned char syncCommandRun = 0; ///< `syncCommandRun`, low 8 bits: 0 never, 1 forced, 2 always
    unsigned int departmentId = 1; ///< `departmentId`: `people.did`, 0 for none
    QHash<unsigned short, QString> messages; ///< group `MES`: register state code to text

    /// Whether a synchronisation runs the export command. Without a command it only warns.
    bool runsCommand(bool forced) const;

    /// Where the plugin finds its INI file.
    static inline const QLatin1String kPath{"/etc/yav/MirovaHR.ini"};

    /// Opens an INI file as the plugin does. A missing file is one without keys.
    static std::unique_ptr<QSettings> open(const QString &path);

    static Configuration read(QSettings &settings);

    /// The keys of group `MES`, without the group, in the order in which they are read: of several
    /// with the same code the last one is in force.
    static QStringList messageKeys(QSettings &settings);

    /// The register state code that a key of group `MES` stands for: the low 16 bits of its number,
    /// 0 for a key that is no number.
    static unsigned short messageCode(const QString &key);
};
