#pragma once

#include <QString>
#include <QStringList>

namespace pelorin::running {

/// What a line of [autoexec] does with names of files that DOSBox can't open.
///
/// DOSBox finds files of the host by their names' bytes in the guest's code page, so one whose name
/// goes beyond ASCII is never found. A start is no use where the line has to find it:
///   - the first word, the program or batch file, also behind call, lh, loadhigh and loadfix;
///   - whatever cd, chdir, mount, imgmount, boot and loadrom name.
/// An argument of a program may be a file or anything else; the program is started. The text of
/// echo, rem, set, prompt and goto, and a label, name no file.
struct UnopenableNames {
    QStringList needed;   // names that the line has to find
    QStringList passedOn; // words that a program or another command may take for a file
};

/// One command line as the guest sees it.
UnopenableNames UnopenableNamesIn(const QString& command);

} // namespace pelorin::running
