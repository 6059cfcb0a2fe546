#include "library/Drafts.h"

#include "platform/Paths.h"
#include "shell/Screens.h"
#include "shell/Settings.h"

namespace pelorin::library {

namespace {

std::optional<QString> IfOther(const QString& saved, const QString& typed)
{
    return saved == typed ? std::nullopt : std::optional(typed);
}

} // namespace

InfoDraft DraftOf(const InfoText& saved, const InfoText& typed)
{
    return InfoDraft{
        {IfOther(saved.titles.first, typed.titles.first),
         IfOther(saved.titles.second, typed.titles.second)},
        IfOther(saved.description, typed.description)};
}

InfoText DraftOver(const InfoText& saved, const InfoDraft& draft)
{
    return InfoText{
        {draft.title[0].value_or(saved.titles.first), draft.title[1].value_or(saved.titles.second)},
        draft.description.value_or(saved.description),
        saved.state};
}

InfoChange ChangeOf(const InfoText& saved, const InfoDraft& draft)
{
    return InfoChange{
        DraftOver(saved, draft), draft.title[0] || draft.title[1], draft.description.has_value()};
}

bool MayEditInfo(const shell::DetailsPanel& details, const shell::Settings& settings)
{
    return platform::IsPlainName(details.folder) && details.savedInfo.state == InfoState::Whole &&
           !settings.rootsChanged;
}

void KeepDraft(Drafts& drafts, const QString& folder, const InfoDraft& draft)
{
    if (draft.IsEmpty()) {
        drafts.erase(folder);
    } else {
        drafts[folder] = draft;
    }
}

void MoveDraft(Drafts& drafts, const QString& from, const QString& to)
{
    if (from == to) {
        return;
    }
    drafts.erase(to);
    auto draft = drafts.extract(from);
    if (!draft.empty()) {
        draft.key() = to;
        drafts.insert(std::move(draft));
    }
}

} // namespace pelorin::library
