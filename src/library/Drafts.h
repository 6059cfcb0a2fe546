#pragma once

#include "library/GameInfo.h"

#include <QString>

#include <array>
#include <map>
#include <optional>

namespace pelorin::shell {
struct DetailsPanel;
struct Settings;
} // namespace pelorin::shell

namespace pelorin::library {

/// What was typed into the boxes of one game and is not saved. What is not set is as the file has
/// it, also when another program changes that.
struct InfoDraft {
    std::array<std::optional<QString>, 2> title;
    std::optional<QString> description; // lines joined by CR LF

    bool IsEmpty() const { return !title[0] && !title[1] && !description; }
};

/// By folder. None of them is empty.
using Drafts = std::map<QString, InfoDraft>;

/// The difference between what the boxes hold and what they would show of the file.
InfoDraft DraftOf(const InfoText& saved, const InfoText& typed);

/// What the boxes show: the draft over the file.
InfoText DraftOver(const InfoText& saved, const InfoDraft& draft);

/// What is to be saved of it.
InfoChange ChangeOf(const InfoText& saved, const InfoDraft& draft);

/// Whether titles and description of the game that the details show may be typed into: the file is
/// known whole, and the games' root is still the one that is saved to.
bool MayEditInfo(const shell::DetailsPanel& details, const shell::Settings& settings);

/// Keeps the draft of a folder, or drops it when it is empty.
void KeepDraft(Drafts& drafts, const QString& folder, const InfoDraft& draft);

/// A folder has got another name. A draft under that name, whose game is gone then, goes.
void MoveDraft(Drafts& drafts, const QString& from, const QString& to);

} // namespace pelorin::library
