#include "dosboxconf/StartList.h"

#include <algorithm>

namespace pelorin::dosboxconf {

namespace {

using Changed = StartCommands::Changed;

void InsertAndSelect(StartCommands& start, const QString& line)
{
    const qsizetype row = std::clamp<qsizetype>(start.commandRow + 1, 0, start.lstAutoexec.size());
    start.lstAutoexec.insert(row, line);
    start.commandRow = static_cast<int>(row);
    start.changed.Tell(Changed::Commands | Changed::CommandRow);
}

bool IsRow(const StartCommands& start, int row)
{
    return row >= 0 && row < start.lstAutoexec.size();
}

void SwapWith(StartCommands& start, int other)
{
    if (!IsRow(start, start.commandRow) || !IsRow(start, other)) {
        return;
    }
    start.lstAutoexec.swapItemsAt(start.commandRow, other);
    start.commandRow = other;
    start.changed.Tell(Changed::Commands | Changed::CommandRow);
}

} // namespace

void FillStartCommands(StartCommands& start, const QStringList& commands)
{
    start.saved = commands;
    start.lstAutoexec = start.saved;
    start.commandRow = start.lstAutoexec.isEmpty() ? -1 : 0;
    start.changed.Tell(Changed::Commands | Changed::CommandRow);
}

void RefillStartCommands(StartCommands& start, const QStringList& commands)
{
    if (start.lstAutoexec == start.saved) {
        FillStartCommands(start, commands);
    } else {
        start.saved = commands;
    }
}

void AddSelectedFile(StartCommands& start)
{
    const QString file = start.fileEXE.value(start.fileRow).trimmed();
    if (!file.isEmpty()) {
        InsertAndSelect(start, file);
    }
}

void AddEmptyLine(StartCommands& start)
{
    InsertAndSelect(start, start.cmdAddEmpty);
}

void DeleteLine(StartCommands& start)
{
    const int row = start.commandRow < 0 ? 0 : start.commandRow;
    if (!IsRow(start, row)) {
        return;
    }
    start.lstAutoexec.removeAt(row);
    start.commandRow = std::min(row, static_cast<int>(start.lstAutoexec.size()) - 1);
    start.changed.Tell(Changed::Commands | Changed::CommandRow);
}

void MoveLineUp(StartCommands& start)
{
    SwapWith(start, start.commandRow - 1);
}

void MoveLineDown(StartCommands& start)
{
    SwapWith(start, start.commandRow + 1);
}

void ReplaceLine(StartCommands& start, int row, const QString& reply)
{
    const QString line = reply.trimmed();
    if (line.isEmpty() || !IsRow(start, row)) {
        return;
    }
    start.lstAutoexec[row] = line;
    start.changed.Tell(Changed::Commands);
}

} // namespace pelorin::dosboxconf
