#pragma once

#include <QStringList>

namespace pelorin::shell {

class LangTable;

/// Names for a question, a line each: the first ten of them, and how many more there are.
QStringList FirstNames(const QStringList& names, const LangTable& lang);

} // namespace pelorin::shell
