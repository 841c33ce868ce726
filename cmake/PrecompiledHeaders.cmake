# The headers of Qt and of the standard library are most of what the compiler reads; reading them
# once takes a third off a build. They are those of other projects only, and each source still
# includes what it uses: the lint compiles without this.
option(CORVANE_PRECOMPILE_HEADERS "Precompile the headers of Qt and of the standard library" ON)

# For all that `target` links: whether that is `wanted`.
function(corvane_links target wanted result)
    set(seen)
    get_target_property(waiting ${target} LINK_LIBRARIES)
    while(waiting)
        list(POP_FRONT waiting library)
        if(library STREQUAL wanted)
            set(${result} TRUE PARENT_SCOPE)
            return()
        endif()
        if(TARGET "${library}" AND NOT library IN_LIST seen)
            list(APPEND seen ${library})
            get_target_property(further ${library} INTERFACE_LINK_LIBRARIES)
            if(further)
                list(APPEND waiting ${further})
            endif()
        endif()
    endwhile()
    set(${result} FALSE PARENT_SCOPE)
endfunction()

function(corvane_precompiled_headers name libraries)
    set(source ${PROJECT_BINARY_DIR}/${name}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "")
    add_library(${name} OBJECT ${source})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    target_link_libraries(${name} PRIVATE project_options ${libraries})
    target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

# Of the targets of a folder and of those below it, lets those share them that have project_options
# and no source in C.
function(corvane_share_precompiled_headers folder)
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(libraries ${target} LINK_LIBRARIES)
        get_target_property(sources ${target} SOURCES)
        if("project_options" IN_LIST libraries AND NOT target MATCHES "^precompiled_"
            AND NOT sources MATCHES "\\.c(;|$)")
            corvane_links(${target} Qt6::Widgets has_widgets)
            if(has_widgets)
                target_precompile_headers(${target} REUSE_FROM precompiled_widgets)
            else()
                target_precompile_headers(${target} REUSE_FROM precompiled_core)
            endif()
            # In a program that is next to nothing, and compiles in a thirtieth of the time without.
            get_target_property(type ${target} TYPE)
            get_target_property(binary_dir ${target} BINARY_DIR)
            if(type STREQUAL "EXECUTABLE")
                set_source_files_properties(${binary_dir}/${target}_autogen/mocs_compilation.cpp
                    TARGET_DIRECTORY ${target} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
            endif()
        endif()
    endforeach()
    get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    foreach(below IN LISTS folders)
        corvane_share_precompiled_headers(${below})
    endforeach()
endfunction()

if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache") # which wants to be told that it may know them
    message(STATUS "No precompiled headers with ccache")
    set(CORVANE_PRECOMPILE_HEADERS OFF)
endif()
if(CORVANE_PRECOMPILE_HEADERS)
    set(core_headers
        <algorithm> <array> <functional> <limits> <map> <memory> <optional> <string> <utility> <vector>
        <QAbstractItemModel> <QByteArray> <QCoreApplication> <QDateTime> <QDir> <QElapsedTimer>
        <QFile> <QFileInfo> <QHash> <QJsonArray> <QJsonDocument> <QJsonObject> <QList> <QLocale>
        <QMap> <QObject> <QPointer> <QProcess> <QRegularExpression> <QSet> <QSettings> <QString>
        <QStringList> <QTimer> <QUrl> <QVariant>)
    set(widget_headers
        <QAction> <QApplication> <QBoxLayout> <QComboBox> <QDialog> <QDockWidget> <QHeaderView>
        <QIcon> <QKeyEvent> <QLabel> <QLineEdit> <QMainWindow> <QMenu> <QPainter> <QPushButton>
        <QScrollBar> <QStyledItemDelegate> <QTableWidget> <QToolBar> <QToolButton> <QTreeWidget>
        <QWidget>)
    corvane_precompiled_headers(precompiled_core Qt6::Core ${core_headers})
    corvane_precompiled_headers(precompiled_widgets Qt6::Widgets ${core_headers} ${widget_headers})
    corvane_share_precompiled_headers(${PROJECT_SOURCE_DIR})
endif()
