import QtQuick
import QtQuick.Controls

// Whole seconds shown as the player's clock shows them ("2:05"); typed as
// "2:05" or as plain seconds.
SpinBox {
    from: 0
    editable: true
    implicitWidth: 116
    textFromValue: function(value) {
        const minutes = Math.floor(value / 60)
        const seconds = value % 60
        return minutes + ":" + (seconds < 10 ? "0" : "") + seconds
    }
    valueFromText: function(text) {
        const parts = text.trim().split(":")
        if (parts.length === 2)
            return (parseInt(parts[0]) || 0) * 60 + (parseInt(parts[1]) || 0)
        return parseInt(text) || 0
    }
    validator: RegularExpressionValidator { regularExpression: /^\s*\d{1,3}(:\d{0,2})?\s*$/ }
}
