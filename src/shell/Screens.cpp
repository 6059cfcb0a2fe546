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
    platform::Notifier* const notifiers[] = {
        &list.changed,
        &tree.changed,
        &search.changed,
        &details.changed,
        &start.changed,
        &cd.changed,
        &placement.changed,
        &status.changed,
        &progress.changed,
        &notice.changed,
        &frame.changed,
    };
    for (platform::Notifier* notifier : notifiers) {
        notifier->SetGate(&gate);
    }
    // The progress display must move while the list is held back.
    progress.changed.SetGate(nullptr);
    notice.changed.SetGate(nullptr);
}

} // namespace pelorin::shell
