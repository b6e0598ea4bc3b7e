#pragma once

#include <QColor>
#include <QString>
#include <string>

namespace tarnview {

/// The program's texts (Windows-1252 bytes) as the toolkit's, and back.
QString ToQt(const std::string& text);
std::string FromQt(const QString& text);
/// A text that is only shown, never read back, and may hold a path.
QString ShownToQt(const std::string& text);
/// The same for a tool tip, which the toolkit would take for HTML where it looks like it.
QString TipToQt(const std::string& text);
/// The same for a window's caption, where the toolkit puts a mark of its own in the place of "[*]".
QString CaptionToQt(const std::string& text);

/// Paths are the platform's bytes; one whose bytes are no text of the platform goes to the toolkit
/// and back unharmed, though only files of the program's own FileSystem are found under it there.
QString PathToQt(const std::string& path);
std::string PathFromQt(const QString& path);

/// 0xBBGGRR as a colour of the toolkit, and back.
QColor ColourToQt(long colour);
long ColourFromQt(const QColor& colour);

}  // namespace tarnview
