// SPDX-License-Identifier: MIT
pragma Singleton

import QtQml

/*! Easing curves for Easing.BezierSpline: two control points and the end point, x before y. */
QtObject {
    id: _interpolators

    /*! A straight line. */
    readonly property list<real> linearInterpolator: [0.0, 0.0, 0.0, 0.0, 1.0, 1.0]
}
