// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "message.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>

#include <cstdio>

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    if (QGuiApplication::arguments().size() != 2) {
        std::fputs("Usage: player FOLDER|SMIL\n", stderr);
        return 2;
    }
    Message::registerTypes();
    Message message(QGuiApplication::arguments().constLast());
    QQmlApplicationEngine engine;
    engine.addImageProvider(QStringLiteral("parts"), new Pictures(message));
    engine.setInitialProperties({{QStringLiteral("message"), QVariant::fromValue(&message)}});
    engine.load(QUrl(QStringLiteral("qrc:/Player.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
