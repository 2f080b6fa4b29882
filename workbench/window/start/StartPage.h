#pragma once

#include <QScrollArea>
#include <QVector>

class QAction;
class QLabel;
class QListWidget;
class QListWidgetItem;

namespace workbench {

class StartButton;

/// The page that the window shows while no project is open. It lists recent projects and offers the
/// actions that open or create a project. The page itself neither opens nor creates projects.
class StartPage : public QScrollArea
{
    Q_OBJECT

public:
    /// The actions are not owned. The data of a sample's action is the name of the model.
    struct Actions
    {
        QVector<QAction*> samples;
        QAction* modelFile;
        QAction* open;
    };

    StartPage(const Actions& actions, QWidget* parent);

    /// Reloads the list of recent projects from the program settings.
    void refresh();

Q_SIGNALS:
    /// Emitted when the user chooses a recent project.
    void projectChosen(const QString& path);

protected:
    void changeEvent(QEvent* event) override;

private:
    QLayout* recentColumn(QAction* open);
    QLayout* newProjectColumn(const Actions& actions);
    void addProjects();
    void addPictures();
    void chooseClicked(const QListWidgetItem* item);
    void choose(const QListWidgetItem* item);
    void remove();
    void setTexts();

    QLabel* m_recentTitle;
    QLabel* m_newTitle;
    QLabel* m_drop;
    QListWidget* m_recent;
    QAction* m_remove;
    QVector<StartButton*> m_samples;
};

} // namespace workbench
