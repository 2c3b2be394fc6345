import QtQuick
import QtQuick.Controls.impl

// One symbol, tinted to the text colour unless told otherwise.
IconImage {
    property string symbol: ""
    property int size: 16
    source: symbol.length > 0 ? ui.icon(symbol) : ""
    sourceSize: Qt.size(size, size)
    width: size
    height: size
    color: palette.windowText
}
