// SPDX-License-Identifier: MIT
import QtQuick

/*! A ring with an arc that turns, grows and shrinks. It runs for its whole life, shown or not. */
Canvas {
    id: _spinner

    /*! Pixels. */
    property int lineWidth: 10
    /*! Colour of the ring. */
    property color backgroundColor: "#101828"
    /*! Colour of the arc. */
    property color foregroundColor: "#ffffff"
    /*! Where the arc starts and ends, in whole degrees clockwise from the top, before it is turned. */
    property int startDeg
    property int endDeg: 5
    /*! By how much the arc is turned, in whole degrees. */
    property int rotationDeg
    /*! The arc is painted anew when this changes, and at no other change. */
    readonly property int updateCondition: {
        const sum = startDeg + endDeg + rotationDeg;
        // Wraps where the angles are extreme; Qt's own conversion to an int overflows there.
        return sum - Math.floor((sum + 2147483648) / 4294967296) * 4294967296;
    }

    width: 100
    height: 100
    antialiasing: true

    Component.onCompleted: _interval.start()
    onUpdateConditionChanged: requestPaint()
    onPaint: {
        const context = getContext("2d");
        const radius = Math.min(width, height) / 2 - lineWidth / 2;
        const start = (startDeg + rotationDeg - 90) / 180 * Math.PI;
        const end = (endDeg + rotationDeg - 90) / 180 * Math.PI;
        context.clearRect(0, 0, width, height);
        // A line thicker than the ring is wide draws nothing.
        if (radius < 0)
            return;
        context.lineWidth = lineWidth;
        context.lineCap = "round";
        context.strokeStyle = backgroundColor;
        context.beginPath();
        context.arc(width / 2, height / 2, radius, 0, 2 * Math.PI, false);
        context.stroke();
        context.strokeStyle = foregroundColor;
        context.beginPath();
        context.arc(width / 2, height / 2, radius, start, end, false);
        context.stroke();
    }

    NumberAnimation {
        id: _growAnimation

        target: _spinner
        property: "endDeg"
        duration: 600
        easing.type: Easing.InOutQuad

        onStopped: _interval.start()
    }

    PauseAnimation {
        id: _interval

        property bool animSwitcher: true

        duration: 300

        onStopped: {
            _spinner.endDeg = _spinner.endDeg % 360;
            _spinner.startDeg = _spinner.startDeg % 360;
            _growAnimation.to = _spinner.endDeg + 280;
            _shrinkAnimation.to = _spinner.startDeg + 280;
            if (animSwitcher)
                _growAnimation.start();
            else
                _shrinkAnimation.start();
            animSwitcher = !animSwitcher;
        }
    }

    NumberAnimation {
        id: _shrinkAnimation

        target: _spinner
        property: "startDeg"
        duration: 600
        easing.type: Easing.InOutQuad

        onStopped: _interval.start()
    }

    NumberAnimation {
        target: _spinner
        property: "rotationDeg"
        from: 0
        to: 360
        duration: 1200
        loops: Animation.Infinite
        running: true
    }
}
