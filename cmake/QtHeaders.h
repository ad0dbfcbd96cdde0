// What most sources of the screens read, compiled once.
#pragma once

#include "cmake/StandardHeaders.h"

#include <QAbstractListModel>
#include <QGuiApplication>
#include <QImage>
#include <QObject>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QUrl>
