// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

import QtQuick
import VySmil

Window {
    id: window
    required property QtObject message
    readonly property var slideShow: message.slideShow
    readonly property var slides: slideShow.slides
    readonly property var starts: startsOf(slides) // of the slides, and the end of the last; milliseconds
    readonly property real total: starts[slides.length]
    readonly property real position: starts[current] + ms
    property int current: 0
    property real ms: 0 // from the start of the current slide
    property bool playing: slides.length > 0
    readonly property var slide: slides[current]
    readonly property Component playback: Qt.createComponent("Playback.qml") // only with Qt Multimedia

    width: 360; height: 720
    visible: true
    title: message.name
    color: "#eceff1"

    function startsOf(slides) {
        let starts = [0]
        for (let i = 0; i < slides.length; ++i)
            starts.push(starts[i] + slides[i].durationMs)
        return starts
    }
    // At the end the last that was seen stays.
    function seek(position) {
        const time = Math.max(0, Math.min(position, total - 1))
        let found = current
        while (found + 1 < slides.length && starts[found + 1] <= time)
            ++found
        while (found > 0 && starts[found] > time)
            --found
        current = found
        ms = Math.max(0, time - starts[found])
    }
    function go(slide) { seek(starts[Math.max(0, Math.min(slide, slides.length - 1))]) }
    function previous() { go(ms > 1000 ? current : current - 1) }
    function next() { go(current + 1) }
    function toggle() {
        if (!playing && starts[current] + ms >= total - 1)
            go(0)
        playing = !playing && slides.length > 0
    }
    function soundsAt(slide, ms) {
        const sounds = slide.mediaAt(ms).filter(i => slide.media[i].kind === VySmilMedium.MEDIUM_AUDIO)
        return sounds.map(i => "♪ " + message.plain(slide.media[i].src)).join(" ")
    }

    FrameAnimation {
        running: window.playing
        onTriggered: {
            const time = window.starts[window.current] + window.ms + frameTime * 1000
            window.seek(time)
            window.playing = time < window.total
        }
    }
    Item {
        focus: true
        Keys.onSpacePressed: window.toggle()
        Keys.onLeftPressed: window.previous()
        Keys.onRightPressed: window.next()
    }
    component Button: Rectangle {
        property alias sign: label.text
        property string name
        signal clicked()
        width: 44; height: 44; radius: 22
        color: area.pressed ? "#b0bec5" : "transparent"
        Accessible.role: Accessible.Button
        Accessible.name: name
        Accessible.onPressAction: clicked()
        Plain { id: label; anchors.centerIn: parent; font.pixelSize: 22 }
        MouseArea { id: area; anchors.fill: parent; onClicked: parent.clicked() }
    }

    Rectangle {
        id: stage
        objectName: "stage"
        readonly property size size: window.slideShow.size
        readonly property real room: window.height * (list.count > 0 ? 0.62 : 0.87)
        readonly property real zoom: slides.length > 0 ? Math.min(window.width / size.width, room / size.height) : 0
        anchors.horizontalCenter: parent.horizontalCenter
        width: size.width * zoom; height: size.height * zoom
        clip: true
        color: window.slideShow.background.valid ? window.slideShow.background : "white"
        Repeater {
            model: window.slide ? window.slide.media : []
            Medium {
                required property var modelData
                medium: modelData
                message: window.message
                endMs: window.slide.endOf(modelData)
                ms: window.ms
                zoom: stage.zoom
                paper: stage.color
                playing: window.playing
                playback: window.playback
            }
        }
    }
    Rectangle {
        id: bar
        objectName: "bar"
        anchors { top: stage.bottom; left: parent.left; right: parent.right; margins: 8 }
        height: 6; radius: 3
        color: "#cfd8dc"
        Rectangle {
            width: parent.width * (window.starts[window.current] + window.ms) / Math.max(1, window.total)
            height: parent.height; radius: 3
            color: "#00796b"
        }
        MouseArea {
            anchors { fill: parent; margins: -8 }
            onMouseXChanged: window.seek((mouseX - 8) / bar.width * window.total)
        }
    }
    Row {
        id: buttons
        anchors { top: bar.bottom; topMargin: 4; horizontalCenter: parent.horizontalCenter }
        spacing: 8
        Button { name: qsTr("Previous"); sign: "‹"; onClicked: window.previous() }
        Button {
            name: window.playing ? qsTr("Pause") : qsTr("Play"); sign: window.playing ? "❚❚" : "▶"
            onClicked: window.toggle()
        }
        Button { name: qsTr("Next"); sign: "›"; onClicked: window.next() }
    }
    Plain {
        anchors { left: parent.left; leftMargin: 12; verticalCenter: buttons.verticalCenter }
        text: window.slide ? window.current + 1 + " / " + window.slides.length : ""
    }
    Plain {
        anchors { left: buttons.right; right: parent.right; margins: 12; verticalCenter: buttons.verticalCenter }
        text: window.slide ? window.soundsAt(window.slide, window.ms) : ""
        horizontalAlignment: Text.AlignRight
        maximumLineCount: 1; elide: Text.ElideRight
    }
    ListView { // below: the files that no slide shows, and what is wrong with the message
        id: list
        readonly property var files: window.message.attachments
        anchors { top: buttons.bottom; bottom: parent.bottom; left: parent.left; right: parent.right; margins: 12 }
        clip: true
        spacing: 8
        model: files.length + window.message.notes.length
        delegate: Item {
            id: row
            required property int index
            readonly property int part: index < list.files.length ? list.files[index] : -1
            readonly property var file: window.message.parts[part]
            width: ListView.view.width; height: Math.max(44, words.height)
            Rectangle {
                width: 44; height: 44; radius: 6
                color: row.file ? "#cfd8dc" : "#ffe082"
                Plain { anchors.centerIn: parent; text: row.file ? "…" : "!" }
            }
            Image {
                width: 44; height: 44
                sourceSize: Qt.size(88, 88)
                fillMode: Image.PreserveAspectCrop
                source: row.file && row.file.contentType.startsWith("image/") ? "image://parts/" + row.part : ""
                asynchronous: true
            }
            Plain {
                id: words
                anchors { left: parent.left; leftMargin: 56; right: parent.right; verticalCenter: parent.verticalCenter }
                text: row.file ? window.message.plain(row.file.name)
                               : window.message.notes[row.index - list.files.length]
            }
        }
    }
}
