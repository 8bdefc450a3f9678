#pragma once

#include <QString>

class MirovaRonRecord;

/// How people speak of a person: "1234.1 Jana Nováková".
QString personName(const MirovaRonRecord &record);
