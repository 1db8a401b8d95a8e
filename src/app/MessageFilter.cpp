// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MessageFilter.h"

#include <QString>
#include <QtGlobal>
#include <cstdio>

namespace gw::app {

namespace {

QtMessageHandler previous = nullptr;

void filter(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.startsWith(QLatin1String("PulseAudioService:")) ||
        message.startsWith(QLatin1String("No audio device detected"))) {
        return;
    }
    if (previous) {
        previous(type, context, message);
    } else {
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
    }
}

}  // namespace

void installMessageFilter() {
    previous = qInstallMessageHandler(filter);
}

}  // namespace gw::app
