// SPDX-License-Identifier: MIT
import QtQuick
import Kelui.Gallery
import Kelui.UI.Qml.Controls.Generic as Generic

/*! The picture of a film that fades into the background to the left and below. */
Item {
    id: _backdrop

    required property int film

    Generic.RoundedImage {
        anchors.fill: parent
        source: _backdrop.visible ? FilmCatalogue.picture(_backdrop.film, width, height) : ""
    }

    Generic.Rectangle {
        width: parent.width * 0.6
        height: parent.height
        gradient: Gradient {
            orientation: Gradient.Horizontal

            GradientStop {
                position: 0
                color: Theme.background
            }
            GradientStop {
                position: 0.25
                color: "#d00d121a"
            }
            GradientStop {
                position: 1
                color: HomeTheme.clearShade
            }
        }
    }

    Generic.Rectangle {
        y: parent.height - height
        width: parent.width
        height: parent.height * 0.4
        gradient: Gradient {
            GradientStop {
                position: 0
                color: HomeTheme.clearShade
            }
            GradientStop {
                position: 1
                color: Theme.background
            }
        }
    }
}
