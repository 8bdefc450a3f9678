#pragma once

#include "worker/mirovaronrecord.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

/// A second implementation of reading the HR export, straight from the description of its format:
/// slow, plain, and independent of the worker's. The local zone must be UTC.
namespace PlainReading {

/// The texts of the lines of a file, in their order, without the empty ones and those of more than
/// 64 KiB.
QStringList lines(const QByteArray &file);

/// What a line holds between its separators.
QStringList parts(const QString &line);

/// The record of 18 parts.
MirovaRonRecord record(const QStringList &parts);

/// True when a record has both its numbers and any name.
bool isKept(const MirovaRonRecord &record);

/// The records of these lines that are kept.
QVector<MirovaRonRecord> records(const QStringList &lines);

/// True when all fields are equal, the balance bit by bit: one that is not a number equals itself.
bool areSame(const MirovaRonRecord &a, const MirovaRonRecord &b);

} // namespace PlainReading
