#pragma once

#include "messagetreewidget.h"

class MessageTreeFilter;

/**
 * Base of the rows of a MessageTreeWidget: what stands in which column, which fields have rows at
 * all, and whether a row starts expanded.
 *
 * Rows are owned like all items of a QTreeWidget, and must not outlive the tree widget that they
 * were made for.
 */
class CORVANEGUI_EXPORT AbstractMessageTreeWidgetItem : public QTreeWidgetItem
{
public:
    enum InitialExpansionPolicy : qint32 {
        ExpandInitially = 0,
        CollapseInitially = 1,
        AskTreeWidget = 2 ///< MessageTreeWidget::mustInitiallyBeExpanded() decides.
    };

    /** \a messageTreeWidget: the tree that the row is going to be in, not owned; may be null. */
    explicit AbstractMessageTreeWidgetItem(MessageTreeWidget *messageTreeWidget);
    ~AbstractMessageTreeWidgetItem() override;
    AbstractMessageTreeWidgetItem(const AbstractMessageTreeWidgetItem &) = delete;
    AbstractMessageTreeWidgetItem &operator=(const AbstractMessageTreeWidgetItem &) = delete;

    // The virtual operations keep this order: it is part of the binary interface.

    virtual QString getNameText();
    virtual QString getNameToolTip();
    virtual QString getTypeText();
    virtual QString getValueText();
    virtual QString getRawValueText();
    /** Forgets what messages brought; the rows stay, those of repeated values excepted. */
    virtual void clearValues() = 0;
    virtual void processMessage(const Message *message) = 0;
    /**
     * Sets texts and expansion of the row and all below. To be called once the row has been put
     * into a tree; the tree calls it again when columns or kinds of fields change.
     */
    virtual void configureInTreeWidget();
    /** \a filter is not owned; null for none. */
    virtual void setFilter(MessageTreeFilter *filter);
    virtual bool isInFilter();

    QString getTextForColumn(MessageTreeWidget::ColumnType type);
    // Each sets the text of its column, where the tree has one.
    void setNameText();
    void setTypeText();
    void setValueText();
    void setRawValueText();
    void setAllTexts();
    /** The tree that the row is in, else the one it was made for; null for a tree of another kind.
     */
    MessageTreeWidget *getMessageTreeWidget();
    void setInitialExpansionPolicy(InitialExpansionPolicy policy);
    InitialExpansionPolicy getInitialExpansionPolicy() const;
    /** Whether \a field has a row, by its confidentiality, its kind and its role. */
    bool mustShowField(const FieldInfo *field);
    MessageTreeFilter *getFilter();

private:
    void setColumnText(MessageTreeWidget::ColumnType type,
                       QString (AbstractMessageTreeWidgetItem::*text)());

    MessageTreeWidget *messageTreeWidget; ///< Not owned.
    InitialExpansionPolicy initialExpansionPolicy = CollapseInitially;
    MessageTreeFilter *filter = nullptr; ///< Not owned.
};
