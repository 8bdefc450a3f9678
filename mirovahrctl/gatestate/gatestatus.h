#pragma once

#include "mirovahrctl/site/backslash.h"

#include <QDateTime>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

class GateFolder;

/// The status file of `mirovahrctl gate`: the gate writes it, `mirovahrctl status` and the site's
/// scripts read it. A JSON object:
///
///     {"result": "admitted" or "refused", "time": when the gate ran last,
///      "reasons": [why it refused, ...], "overridden": [what --accept set aside, ...],
///      "linesWithErrors": number, "linesWithWarnings": number,
///      "lastAdmitted": {"time": when, "file": path, "lines": number,
///                       "linesWithErrors": number, "linesWithWarnings": number,
///                       "delivered": when HR wrote the file, "overridden": [...],
///                       "texts": how they were written for the plugin, see GateTexts}}
///
/// Times are texts such as "2026-11-21T05:10:00+01:00", "delivered" has milliseconds. Reasons are
/// sentences without their full stops, in the language of the run that wrote them. The lines of a
/// file that was not examined are not counted. Members that are missing or of another kind count as
/// not known; further ones do not matter.
class GateStatus {
public:
    /// The file's name in the gate's folder.
    static QString fileName();

    /// Nothing when the file cannot be read or is no JSON object; `error` then says why, a sentence
    /// without its full stop.
    static std::optional<GateStatus> read(const QString &path, QString &error);
    /// Nothing when the text is no JSON object.
    static std::optional<GateStatus> parse(const QByteArray &text);

    /// Whether the last run refused its file.
    bool isRefused() const;
    /// When the last run was, Unix time.
    std::optional<qint64> time() const;
    /// Why the last run refused its file.
    QStringList reasons() const;
    /// When a file was admitted last, Unix time.
    std::optional<qint64> admittedTime() const;
    /// The path of the file that was admitted last; empty when it is not known.
    QString admittedFile() const;
    std::optional<qint64> admittedLines() const;
    /// How the texts of the file that was admitted last are written in the published one; nothing:
    /// as they are.
    std::optional<Backslash> admittedTexts() const;
    /// Lines of the file that the gate examined last: those with errors, and those with warnings
    /// and no errors.
    std::optional<qint64> linesWithErrors() const;
    std::optional<qint64> linesWithWarnings() const;

    /// Loads what the last run wrote into the gate's folder; nothing of it is known when the file
    /// is missing or is no JSON object. False when reading fails; the folder then says why.
    bool load(GateFolder &folder);

    struct Admission {
        QString file;
        qint64 lines = 0;
        QDateTime delivered;
        QStringList overridden;
        std::optional<Backslash> texts;
    };
    /// How many lines of this run's file have errors, and how many only warnings. Comes before
    /// refuse() or admit(); without it they are not known.
    void setLines(qint64 withErrors, qint64 withWarnings);
    /// This run refuses its file.
    void refuse(const QStringList &reasons);
    /// This run admits its file, which becomes the last admitted one.
    void admit(const Admission &admission);
    /// This run admits a file with the content of the last admitted one. The last admission stays
    /// unless HR has delivered the same anew; how the texts are written does not.
    void admitAgain(const Admission &admission);

    /// Writes the file. False when that fails; \a error then says why, a sentence without its full
    /// stop.
    bool write(GateFolder &folder, QString &error) const;

private:
    QJsonObject lastAdmitted() const;
    void finish(const char *result, const QStringList &reasons, const QStringList &overridden,
                const QJsonObject &lastAdmitted);

    QJsonObject m_document;
    QJsonObject m_lines; ///< of this run's file
};
