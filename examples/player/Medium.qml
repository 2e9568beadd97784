// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// One medium of a slide, at its place and in its time.

import QtQuick
import VySmil

Item {
    id: place
    required property var medium // VySmilMedium
    required property var message
    required property int endMs
    required property real ms // of the slide's clock
    required property real zoom
    required property color paper // what is behind it
    required property bool playing
    required property Component playback
    readonly property bool present: medium.beginMs <= ms && ms < endMs
    readonly property int kind: medium.part >= 0 ? medium.kind : VySmilMedium.MEDIUM_OTHER
    readonly property bool isText: kind === VySmilMedium.MEDIUM_TEXT
    readonly property color own: medium.background.valid ? medium.background : "transparent"

    visible: present
    x: medium.rect.x * zoom; width: medium.rect.width * zoom
    y: medium.rect.y * zoom; height: medium.rect.height * zoom
    clip: true

    Rectangle { anchors.fill: parent; color: place.own }
    Image {
        id: picture
        readonly property size shown: place.medium.shownSize(Qt.size(implicitWidth, implicitHeight))
        x: (place.medium.area.x - place.medium.rect.x) * place.zoom; width: shown.width * place.zoom
        y: (place.medium.area.y - place.medium.rect.y) * place.zoom; height: shown.height * place.zoom
        source: place.kind === VySmilMedium.MEDIUM_IMAGE ? "image://parts/" + place.medium.part : ""
        asynchronous: true
    }
    Flickable {
        anchors { fill: parent; margins: 6 }
        visible: place.isText
        contentHeight: caption.height
        interactive: contentHeight > height
        Plain {
            id: caption
            width: parent.width
            text: place.isText ? place.message.text(place.medium.part) : ""
            readonly property bool onDark: Qt.tint(place.paper, place.own).hslLightness < 0.5
            color: place.medium.foreground.valid ? place.medium.foreground : onDark ? "white" : "#263238"
        }
    }
    Plain { // the name of what cannot be shown, which leaves in sight what is behind
        anchors.centerIn: parent
        visible: !place.isText && (picture.status === Image.Null || picture.status === Image.Error)
        width: Math.min(implicitWidth, place.width - 24)
        maximumLineCount: 2; elide: Text.ElideRight
        style: Text.Outline; styleColor: "white"
        text: place.message.plain(place.medium.alt || place.medium.src)
    }
    Component.onCompleted: {
        const plays = kind === VySmilMedium.MEDIUM_AUDIO || kind === VySmilMedium.MEDIUM_VIDEO
        if (plays && playback.status === Component.Ready)
            playback.createObject(place, {
                "anchors.fill": place, source: message.recording(medium.part),
                ms: Qt.binding(() => ms - medium.beginMs), playing: Qt.binding(() => present && playing)
            })
    }
}
