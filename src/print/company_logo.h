#pragma once

#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QImage>

namespace zelvor {

// The picture on top of a form. One pixel of it counts as one point; what is wider than 200 is made smaller.
struct CompanyLogo {
    QImage image;    // null when there is none
    QSizeF size;     // points
    QString warning; // why there is none, a sentence for the user

    // The file at that path, or the program's own picture when the path is empty. What is no file, is larger
    // than any logo, or cannot be read as a picture is refused before it takes memory.
    static CompanyLogo fromPath(const QString& path);
    // How large a picture of that many pixels is drawn.
    static QSizeF drawnSize(const QSizeF& pixels);
};

} // namespace zelvor
