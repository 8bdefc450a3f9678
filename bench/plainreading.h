#pragma once

class QString;

/// Reads the export, decodes each line from UTF-8 and splits it, as the simplest Qt program does.
void readByQt(const QString &path);
