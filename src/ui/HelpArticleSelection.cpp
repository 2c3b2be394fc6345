#include "HelpArticleSelection.h"

void HelpArticleSelection::setSelected(HelpArticle article)
{
    if (article.value() == selected_.value())
        return;
    selected_ = article;
    Q_EMIT selectedChanged();
}

void HelpArticleSelection::setSelectedIndex(int index)
{
    if (index < 0 || index >= int(HelpArticle::allCases().size()))
        return;
    setSelected(HelpArticle::allCases()[size_t(index)]);
}
