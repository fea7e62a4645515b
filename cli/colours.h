#pragma once

#include <QByteArray>
#include <QCommandLineParser>

namespace MirrixCli {

class Output;

/// What a part of a text is, as far as a terminal shows it.
enum class Colour
{
    Heading,
    Kept,
    GivenUp
};

/// Declares --color.
void addColourOption(QCommandLineParser &parser);

/// What --color asks for: "auto", "always" or "never". Throws UsageError.
[[nodiscard]] QString colourChoiceOf(const QCommandLineParser &parser);

/// Whether `output` is to be coloured under that choice. "auto" colours terminals, unless the environment says NO_COLOR
/// or that the terminal is a dumb one.
[[nodiscard]] bool isColoured(const QString &choice, const Output &output);

/// `text` in its colour when `isOn`.
[[nodiscard]] QByteArray coloured(const QByteArray &text, Colour colour, bool isOn);

} // namespace MirrixCli
