// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// A sound or video, which follows the clock of the slide. Not there where Qt Multimedia is not installed.

import QtQuick
import QtMultimedia

VideoOutput {
    id: screen
    property url source
    property bool playing
    property real ms // where it should be

    onPlayingChanged: playing ? player.play() : player.pause()
    onMsChanged: {
        if (player.seekable && ms < player.duration && Math.abs(player.position - ms) > 500)
            player.position = ms
    }
    MediaPlayer {
        id: player
        source: screen.source
        videoOutput: screen
        audioOutput: AudioOutput {}
        Component.onCompleted: if (screen.playing) play()
    }
}
