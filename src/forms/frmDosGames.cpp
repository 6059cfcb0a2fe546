#include "forms/frmDosGames.h"

#include <QCloseEvent>

namespace pelorin::forms {

frmDosGames::frmDosGames(const Shown& shown, const Deeds& deeds)
    : m_shown(shown)
    , m_deeds(deeds)
{
    setObjectName(QStringLiteral("frmDosGames"));
}

frmDosGames::~frmDosGames() = default;

void frmDosGames::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!m_deeds.Form_Unload || m_deeds.Form_Unload());
}

} // namespace pelorin::forms
