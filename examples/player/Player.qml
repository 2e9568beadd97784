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
    property real position: 0 // milliseconds
    property bool playing: slides.length > 0
    readonly property int current: starts.slice(1, -1).filter(start => start <= position).length
    readonly property var slide: slides[current]
    readonly property real ms: position - starts[current] // from the start of the slide
    readonly property Component playback: Qt.createComponent("Playback.qml") // only with Qt Multimedia

    width: 360; height: 720
    visible: true
    title: qsTr("Message")
    color: "#eceff1"

    function startsOf(slides) {
        let starts = [0]
        for (let i = 0; i < slides.length; ++i)
            starts.push(starts[i] + slides[i].durationMs)
        return starts
    }
    // At the end the last that was seen stays.
    function seek(time) { position = Math.max(0, Math.min(time, total - 1)) }
    function go(slide) { seek(starts[Math.max(0, Math.min(slide, slides.length - 1))]) }
    function previous() { go(ms > 1000 ? current : current - 1) }
    function next() { go(current + 1) }
    function toggle() {
        if (!playing && position >= total - 1)
            seek(0)
        playing = !playing && slides.length > 0
    }
    function soundsAt(slide, ms) {
        const sounds = slide.mediaAt(ms).filter(i => slide.media[i].kind === VySmilMedium.MEDIUM_AUDIO)
        return sounds.map(i => "♪ " + message.plain(slide.media[i].src)).join(" ")
    }

    FrameAnimation {
        running: window.playing
        onTriggered: {
            window.seek(window.position + frameTime * 1000)
            window.playing = window.position < window.total - 1
        }
    }
    component Button: Plain {
        property string name
        signal clicked()
        width: 44; height: 44
        horizontalAlignment: Text.AlignHCenter; verticalAlignment: Text.AlignVCenter
        font.pixelSize: 22
        Accessible.role: Accessible.Button
        Accessible.name: name
        Accessible.onPressAction: clicked()
        TapHandler { onTapped: parent.clicked() }
    }

    Rectangle {
        id: stage
        objectName: "stage"
        readonly property size size: window.slideShow.size
        readonly property real room: window.height * (list.count > 0 ? 0.62 : 0.87)
        readonly property real zoom: window.slide ? Math.min(window.width / size.width, room / size.height) : 0
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
        focus: true
        Keys.onSpacePressed: window.toggle()
        Keys.onLeftPressed: window.previous()
        Keys.onRightPressed: window.next()
    }
    Rectangle {
        id: bar
        objectName: "bar"
        anchors { top: stage.bottom; left: parent.left; right: parent.right; margins: 8 }
        height: 6
        color: "#cfd8dc"
        Rectangle {
            width: parent.width * window.position / Math.max(1, window.total); height: parent.height
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
        Button { name: qsTr("Previous"); text: "‹"; onClicked: window.previous() }
        Button {
            name: window.playing ? qsTr("Pause") : qsTr("Play"); text: window.playing ? "❚❚" : "▶"
            onClicked: window.toggle()
        }
        Button { name: qsTr("Next"); text: "›"; onClicked: window.next() }
    }
    Plain {
        anchors { left: buttons.right; right: parent.right; margins: 12; verticalCenter: buttons.verticalCenter }
        text: window.slide ? window.soundsAt(window.slide, window.ms) : ""
        maximumLineCount: 1; elide: Text.ElideRight
    }
    ListView { // below: the files that no slide shows, and what is wrong with the message
        id: list
        anchors { top: buttons.bottom; bottom: parent.bottom; left: parent.left; right: parent.right; margins: 12 }
        clip: true
        spacing: 8
        model: [...window.message.attachments, ...window.message.notes]
        delegate: Row {
            id: row
            required property var modelData // the number of a part, or a note
            readonly property var file: typeof modelData === "number" ? window.message.parts[modelData] : null
            spacing: 12
            Rectangle {
                width: 44; height: 44
                color: row.file ? "#cfd8dc" : "#ffe082"
                Image {
                    anchors.fill: parent
                    sourceSize: Qt.size(88, 88)
                    fillMode: Image.PreserveAspectCrop
                    source: row.file && row.file.contentType.startsWith("image/") ? "image://parts/" + row.modelData : ""
                    asynchronous: true
                }
            }
            Plain {
                anchors.verticalCenter: parent.verticalCenter
                width: list.width - 56
                text: row.file ? window.message.plain(row.file.name) : row.modelData
            }
        }
    }
}
