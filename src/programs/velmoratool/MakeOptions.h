// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/encoding/EncoderOptions.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace velmora
{

/// What the arguments after "make" ask for. What they leave open comes from the settings. Paths are
/// as given. Plain value.
struct MakeOptions {
    enum class Order {
        Given, ///< As on the command line; the photos of a folder by name.
        Name,
        Date, ///< When taken, else when last changed.
    };

    QStringList photos; ///< Files and folders.
    QStringList music;  ///< Files and folders.
    QString output;
    QSize size;                           ///< px; invalid: not given.
    std::optional<int> time;              ///< s
    std::optional<int> transition;        ///< A TransitionType value.
    std::optional<int> transitionSeconds; ///< s
    QString title;                        ///< Empty: no title slide.
    bool captionsFromNames = false;
    std::optional<int> fade;   ///< s
    std::optional<int> offset; ///< s
    bool loop = false;
    bool stretch = false;
    bool originalSize = false;
    Order order = Order::Given;
    bool parallel = false;
    std::optional<OutputProfile> profile;
    QString projectFile; ///< A saved document to render instead of photos.
    QString dumpFile;    ///< Where to write the document instead of rendering it.
    bool json = false;
    bool help = false;
    bool version = false;
};

/// Parses the arguments after "make"; nothing, with a sentence for the user in @p error, when they
/// cannot be meant so. Looks at the arguments only, not at any file.
std::optional<MakeOptions> parseMakeOptions(const QStringList &arguments, QString *error);

} // namespace velmora
