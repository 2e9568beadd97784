// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Every text of the player: nothing that a stranger wrote is taken for markup.

import QtQuick

Text {
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    font.pixelSize: 15
    color: "#263238"
}
