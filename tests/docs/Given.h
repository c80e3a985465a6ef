#pragma once

// Declarations that the examples in guides and headers use: objects that a host already has.

#include <QLayout>
#include <QQuickItem>
#include <QWidget>
#include <string>

extern std::string shopperToken;
extern std::string answer;    // a server's
extern std::string fontFile;  // its bytes
extern QQuickItem* productPage;
extern QWidget* page;
