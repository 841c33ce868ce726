#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace corvane {

/** What Qt Designer has to know of a widget. */
struct FormWidgetDescription
{
    const char *className;
    const char *header; ///< Included by code that is made from a form.
    const char *objectName; ///< What a new widget is called.
    const char *toolTip;
    const char *icon; ///< A resource.
    QWidget *(*create)(QWidget *parent);
};

/** One widget in Qt Designer's box. */
class FormWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    /** \a description is not owned. */
    FormWidget(const FormWidgetDescription &description, QObject *parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface *core) override;
    QString domXml() const override;

private:
    const FormWidgetDescription &description; ///< Not owned.
    bool initialized = false;
};

} // namespace corvane
