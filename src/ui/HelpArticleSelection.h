#pragma once

#include "HelpArticle.h"

#include <QObject>

// The help window's selected article, shared by the controller and the view
// and outliving the window.
class HelpArticleSelection : public QObject {
    Q_OBJECT
    Q_PROPERTY(int selected READ selectedIndex WRITE setSelectedIndex NOTIFY selectedChanged)
public:
    using QObject::QObject;

    HelpArticle selected() const { return selected_; }
    void setSelected(HelpArticle article);

    int selectedIndex() const { return int(selected_.value()); }
    void setSelectedIndex(int index);

Q_SIGNALS:
    void selectedChanged();

private:
    HelpArticle selected_ = HelpArticle::sentryMode;
};
