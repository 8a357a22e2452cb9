#pragma once

#include <QList>
#include <QObject>

#include "session/session_table.h"

class DeviceSession;
class QAction;

/// Enables actions as far as the session allows what they do, and explains in their tooltips why they are unavailable.
class ActionRules : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ActionRules)

public:
    /// `session` outlives this object.
    explicit ActionRules(DeviceSession *session, QObject *parent = nullptr);

    /// Binds an action, which outlives this object. `toolTip`: what it does.
    void bind(QAction *action, SessionAction what, const QString &toolTip);
    void refresh();

private:
    struct Rule
    {
        QAction *action;
        SessionAction what;
        QString toolTip;
    };

    DeviceSession *m_session;
    QList<Rule> m_rules;
};
