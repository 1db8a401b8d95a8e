// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/WavCheck.h"

#include <QFile>
#include <QtEndian>

namespace gw::app {
namespace {

constexpr quint16 kPcm = 1;
constexpr qint64 kChunkHeader = 8;

quint32 le32(const char* p) {
    return qFromLittleEndian<quint32>(p);
}
quint16 le16(const char* p) {
    return qFromLittleEndian<quint16>(p);
}

}  // namespace

bool isPlayableWav(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    const QByteArray head = file.read(12);
    if (head.size() != 12 || !head.startsWith("RIFF") || head.mid(8, 4) != "WAVE") return false;
    bool formatOk = false;
    // Walks the chunks: a "fmt " of PCM must come before a "data" that the file holds whole.
    while (true) {
        const QByteArray chunk = file.read(kChunkHeader);
        if (chunk.size() != kChunkHeader) return false;
        const qint64 size = le32(chunk.constData() + 4);
        const qint64 start = file.pos();
        if (chunk.startsWith("fmt ")) {
            const QByteArray fmt = file.read(16);
            if (size < 16 || fmt.size() != 16) return false;
            const quint16 channels = le16(fmt.constData() + 2);
            const quint16 bits = le16(fmt.constData() + 14);
            formatOk = le16(fmt.constData()) == kPcm && channels >= 1 && channels <= 2 &&
                       (bits == 8 || bits == 16) && le32(fmt.constData() + 4) > 0;
        } else if (chunk.startsWith("data")) {
            return formatOk && size > 0 && start + size <= file.size();
        }
        // Chunks are padded to an even length.
        if (!file.seek(start + size + (size & 1))) return false;
    }
}

}  // namespace gw::app
