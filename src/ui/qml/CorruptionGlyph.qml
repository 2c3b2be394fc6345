import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// How many angles of the event are damaged.
RowLayout {
    id: glyph
    property int count: 0
    property string toolTipText: ""
    property string accessibleText: ""
    spacing: 2
    Accessible.role: Accessible.StaticText
    Accessible.name: accessibleText
    HoverHandler { id: hover }
    ToolTip.visible: hover.hovered
    ToolTip.text: toolTipText
    ToolTip.delay: 500
    UrlIcon { source: inbox.texts.corruptIcon; size: 12; color: "#d97706" }
    Label { text: glyph.count; font.pixelSize: 11; color: "#d97706" }
}
