import QtQuick
import QtQuick.Controls.impl

// An icon from a ready URL, tinted to the text colour unless told otherwise.
IconImage {
    property int size: 16
    sourceSize: Qt.size(size, size)
    width: size
    height: size
    color: palette.windowText
}
