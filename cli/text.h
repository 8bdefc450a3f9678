#pragma once

#include <QCoreApplication>

/// The texts that people read, in the language of the program:
///
///     Text::tr("There is no file '%1'.").arg(path)
///     Text::tr("%Ln line(s) were read.", nullptr, count)
///
/// The English text is the key of its translations (mirovahrctl/translations), so it is a literal
/// and a whole sentence. A table of constants marks its texts with QT_TRANSLATE_NOOP("Text",
/// "..."), and whoever reads it calls Text::tr() with them. None is kept in a static variable: the
/// language may change.
struct Text {
    Q_DECLARE_TR_FUNCTIONS(Text)
};
