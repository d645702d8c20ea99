#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>

/// Pictures as files, made for a test.
namespace ormiva::testing {

QByteArray encoded(const QImage& image, const char* format, int quality = -1, bool progressive = false);

QImage plain(int width, int height, const QColor& color = Qt::darkCyan);
/// A picture that no format can make small.
QImage noise(int width, int height);

/// A JPEG with further segments behind its start mark.
QByteArray withSegments(QByteArray jpeg, const QByteArray& segments);
QByteArray segment(char marker, const QByteArray& payload);
/// An Exif note of a single fact: how the picture has to be turned.
QByteArray orientationNote(int orientation);

/// A JPEG of `strip`, which is 16 pixels high, over and over: it takes no bitmap of the whole to make it.
QByteArray stacked(const QImage& strip, int times);
/// A PNG that is whole in form and claims to be of that size.
QByteArray pngClaiming(quint32 width, quint32 height);

} // namespace ormiva::testing
