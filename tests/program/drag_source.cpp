// A file manager as far as a test of the built program needs one: a small window in the corner of the screen
// from which the files and addresses named on the command line are dragged. Its title tells how the last drag
// ended: "waiting", "dragging", "copied", "refused".

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>

namespace {

class source : public QWidget {
public:
    explicit source(const QStringList & dragged)
    {
        for (const QString & each : dragged)
            urls.append(each.startsWith(QLatin1Char('/')) ? QUrl::fromLocalFile(each) : QUrl(each));
        setWindowTitle(QStringLiteral("waiting"));
        setGeometry(1500, 1100, 60, 60);
    }

protected:
    void mouseMoveEvent(QMouseEvent *) override
    {
        if (windowTitle() != QLatin1String("waiting"))
            return;
        setWindowTitle(QStringLiteral("dragging"));
        auto * const carried = new QMimeData;
        carried->setUrls(urls);
        auto * const drag = new QDrag(this);
        drag->setMimeData(carried);
        const Qt::DropAction done = drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
        setWindowTitle(done == Qt::CopyAction     ? QStringLiteral("copied")
                       : done == Qt::IgnoreAction ? QStringLiteral("refused")
                                                  : QStringLiteral("moved"));
    }

private:
    QList<QUrl> urls;
};

}  // namespace

int main(int count, char ** words)
{
    QApplication application(count, words);
    source window(QApplication::arguments().mid(1));
    window.show();
    return QApplication::exec();
}
