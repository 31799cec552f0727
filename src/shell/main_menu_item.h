#pragma once

#include "core/doc_type.h"

#include <QtCore/QString>

#include <memory>
#include <utility>
#include <vector>

namespace zelvor {

// One node of the main menu: a "header" (a group) or an "item".
class MainMenuItem {
public:
    QString title; // as the project's menu table has it
    QString identifier = QStringLiteral("other");
    DocType type = DocType::NilType;
    QString icon; // name of the image
    std::vector<std::shared_ptr<MainMenuItem>> children;
    QString subtype;
    bool expanded = true;

    bool hasChildren() const { return !children.empty(); }
    bool hasIcon() const { return !icon.isEmpty(); }
    bool isHeader() const { return identifier == QStringLiteral("header"); }
    void insertChildren(std::shared_ptr<MainMenuItem> item) { children.push_back(std::move(item)); }
};

} // namespace zelvor
