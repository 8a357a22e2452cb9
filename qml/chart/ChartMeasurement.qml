pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Chart

/// What the cursors of a chart measure, in as many lines as it takes.
Flow {
    id: measures

    required property PlotViewState viewState

    spacing: 14
    visible: texts.count > 0

    Repeater {
        id: texts

        model: measures.viewState.measurement

        Text {
            required property string modelData

            text: modelData
            textFormat: Text.PlainText
            font: Theme.fixedSmallFont
            color: Theme.accentText
        }
    }
}
