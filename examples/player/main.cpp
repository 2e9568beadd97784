// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "message.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QQmlApplicationEngine>

#include <cstdio>

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    const QString path = QGuiApplication::arguments().value(1);
    if (!QFileInfo::exists(path)) {
        std::fputs("Usage: player FOLDER|SMIL\n", stderr);
        return 2;
    }
    Message::registerTypes();
    Message message(path);
    QQmlApplicationEngine engine;
    engine.addImageProvider(QStringLiteral("parts"), new Pictures(message));
    engine.setInitialProperties({{QStringLiteral("message"), QVariant::fromValue(&message)}});
    engine.load(QUrl(QStringLiteral("qrc:/Player.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
