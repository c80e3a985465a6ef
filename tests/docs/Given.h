#pragma once

// What the examples in guides and headers take for granted: objects that a host has already.

#include <QLayout>
#include <QQuickItem>
#include <QWidget>
#include <string>

extern std::string shopperToken;
extern std::string answer;    // a server's
extern std::string fontFile;  // its bytes
extern QQuickItem* productPage;
extern QWidget* page;
