#include "ui/action_rules.h"

#include <QAction>

#include <algorithm>

#include "session/device_session.h"
#include "ui/session_text.h"

ActionRules::ActionRules(DeviceSession *session, QObject *parent) : QObject(parent), m_session(session)
{
    connect(session, &DeviceSession::stateChanged, this, &ActionRules::refresh);
}

void ActionRules::bind(QAction *action, SessionAction what, const QString &toolTip)
{
    const auto at =
        std::find_if(m_rules.begin(), m_rules.end(), [action](const Rule &rule) { return rule.action == action; });
    if (at == m_rules.end())
        m_rules.append({action, what, toolTip});
    else
        at->toolTip = toolTip;
    refresh();
}

void ActionRules::refresh()
{
    for (const Rule &rule : std::as_const(m_rules)) {
        const Refusal refusal = m_session->refusal(rule.what);
        rule.action->setEnabled(refusal == Refusal::None);
        rule.action->setToolTip(refusal == Refusal::None ? rule.toolTip
                                                         : rule.toolTip + u'\n' + session_text::refusal(refusal));
    }
}
