// SPDX-License-Identifier: MIT
import Kelui.Gallery

/*! A small line that says what a sample shows. */
Label {
    font: Theme.caption
    color: Theme.secondaryText
}
