#include "chart/chart_link.h"

#include <utility>

#include "chart/plot_view_state.h"

void ChartLink::setLinked(bool linked)
{
    if (linked == m_linked)
        return;
    m_linked = linked;
    emit linkedChanged();
    PlotViewState *leader = m_last ? m_last : m_views.value(0);
    if (!linked || !leader)
        return;
    spread(leader, &ChartLink::takeRange);
    spread(leader, &ChartLink::takeCursors);
}

void ChartLink::add(PlotViewState *view)
{
    m_views += view;
    connect(view, &PlotViewState::viewChanged, this, [this, view] { spread(view, &ChartLink::takeRange); });
    connect(view, &PlotViewState::cursorsChanged, this, [this, view] { spread(view, &ChartLink::takeCursors); });
    connect(view, &PlotViewState::hoverChanged, this, [this, view] { spread(view, &ChartLink::takePointer); });
    if (m_linked && m_views.size() > 1) {
        m_isSpreading = true;
        takeRange(*view, *m_views.first());
        takeCursors(*view, *m_views.first());
        m_isSpreading = false;
    }
}

void ChartLink::remove(PlotViewState *view)
{
    m_views.removeAll(view);
    view->disconnect(this);
    if (m_last == view)
        m_last = nullptr;
}

void ChartLink::spread(PlotViewState *from, void (ChartLink::*take)(PlotViewState &, const PlotViewState &))
{
    if (m_isSpreading)
        return;
    m_last = from;
    if (!m_linked)
        return;
    m_isSpreading = true;
    for (PlotViewState *view : std::as_const(m_views)) {
        if (view != from)
            (this->*take)(*view, *from);
    }
    m_isSpreading = false;
}

void ChartLink::takeRange(PlotViewState &to, const PlotViewState &from)
{
    // A chart that follows its newest sample makes the others follow theirs.
    const double shift = from.isAtNewest() ? 0 : from.clock() - to.clock();
    to.setXRange(from.xViewMin() + shift, from.xViewMax() + shift);
}

void ChartLink::takeCursors(PlotViewState &to, const PlotViewState &from)
{
    to.takeCursors(from.cursors(), from.clock() - to.clock());
}

void ChartLink::takePointer(PlotViewState &to, const PlotViewState &from)
{
    to.setHoverX(from.hoverX() + from.clock() - to.clock());
}
