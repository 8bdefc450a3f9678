#pragma once

#include "mirovahrctl/report/severity.h"

#include <QString>
#include <QtGlobal>

struct Rule;

/// One result of a rule.
struct Finding {
    Severity severity = Severity::Warning;
    QString rule; ///< id of the rule
    QString message; ///< what is wrong, in whole sentences
    QString advice; ///< what to do about it, a whole sentence; may be empty
    bool forHr = false; ///< the advice is for HR, not for the administrator
    qint64 line = 0; ///< line of the checked file, counted from 1; 0: the file as a whole
    QString field; ///< field of the export, key of the INI file, column; may be empty
    QString subject; ///< the person or thing, such as "1234.1 Jana Nováková"; may be empty
    /// Whom a line is most likely about that cannot be read; empty when \a subject is certain, or
    /// nobody can be recognised.
    QString likely;
    QString lineText; ///< the line itself, cut at a sensible length; may be empty
    bool dropped = false; ///< the plugin leaves this line out
};

/// The person or thing of a finding, for people: "most likely Eva Malá" when it is not certain.
QString findingPerson(const Finding &finding);

/// A finding of the rule's usual severity about the whole, without a line, field or subject.
/// \a advice: what to do in this very case; a null text stands for the advice of the rule.
Finding makeFinding(const Rule &rule, const QString &message, const QString &advice = QString());
