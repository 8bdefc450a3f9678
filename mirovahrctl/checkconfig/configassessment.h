#pragma once

#include "cli/inifile.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/reportwriter.h"
#include "plugin/configuration.h"

#include <QVector>

#include <memory>

class QSettings;

/// What an INI file puts in force, and what is wrong with it. Reads the file as the plugin does,
/// and examines the files and folders that it names; nothing else.
class ConfigAssessment {
public:
    explicit ConfigAssessment(const QString &path);
    ~ConfigAssessment();
    ConfigAssessment(const ConfigAssessment &) = delete;
    ConfigAssessment &operator=(const ConfigAssessment &) = delete;

    /// What is in force.
    const Configuration &configuration() const { return m_config; }

    /// A row for each key: what the file says ("written", nothing when the key is missing) and what
    /// that puts in force ("inForce").
    Table keys() const;

    /// All findings in the order of the lines; first those without a line.
    QVector<Finding> findings();

private:
    void checkFile();
    void checkKeys();
    void checkLine(const IniLine &line);
    void checkNumber(const QString &key);
    void checkFlag(const QString &key);
    void checkText(const QString &key);
    void checkOperation();
    void checkPeriods();
    void checkImportFile();
    void checkImportFolder(const QString &path);
    void checkSyncCommand();
    void checkSyncCommandRun();
    void checkGate();
    void checkMessages();
    void checkMessageKey(const QString &key);
    void checkMessageText(const QString &key);
    void checkMessageCollisions(const QStringList &keys);

    QString written(const QString &key) const;
    bool isList(const QString &key) const;
    qint64 lineOf(const QString &key) const;
    void add(const Rule &rule, const QString &key, const QString &message,
             const QString &advice = QString());

    const QString m_path;
    const QVector<IniLine> m_lines;
    std::unique_ptr<QSettings> m_settings;
    Configuration m_config;
    QVector<Finding> m_findings;
};
