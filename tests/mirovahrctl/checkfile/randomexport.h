#pragma once

#include <QByteArray>
#include <QVector>

class QRandomGenerator;

/// Exports in which nearly every line has a mistake of some kind.
namespace RandomExport {

/// A few lines without their line feeds, of which none contains one.
QVector<QByteArray> lines(QRandomGenerator &random);

/// A file of these lines; the last one sometimes lacks its line feed.
QByteArray joined(QRandomGenerator &random, const QVector<QByteArray> &lines);

} // namespace RandomExport
