#include "shell/Screens.h"

#include <iterator>

namespace pelorin::shell {

namespace {

constexpr std::size_t kMostNotes = 100;

} // namespace

void StatusBar::Tell(const QString& text, const QString& story)
{
    if (notes.size() == kMostNotes) {
        notes.erase(notes.begin());
    }
    notes.push_back(Note{text, story});
    changed.Tell(Notes);
}

Screens::Screens()
{
    // Those of progress, notice and panels have none: the display of a job must move, and the panels
    // must be at rest, while the list is held back.
    platform::Notifier* const notifiers[] = {
        &list.changed,
        &tree.changed,
        &search.changed,
        &details.changed,
        &media.changed,
        &configDetail.changed,
        &start.changed,
        &config.changed,
        &cd.changed,
        &placement.changed,
        &folderCfg.changed,
        &status.changed,
        &frame.changed,
    };
    for (platform::Notifier* notifier : notifiers) {
        notifier->SetGate(&gate);
    }
}

} // namespace pelorin::shell
