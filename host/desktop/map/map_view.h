#pragma once
/// The map of the section lines: moved with the mouse or the keys, selected together with the rest of the
/// window.
///
/// Drag or arrows move, the wheel or + and - zoom at the pointer, Shift with drag zooms to a rectangle, Ctrl
/// with drag selects the lines in one. The lines are drawn into a picture of their own; what follows the
/// pointer is drawn over it. [ui]

#include <QImage>
#include <QWidget>
#include <optional>
#include <utility>
#include <vector>

#include "desktop/map/map_ground.h"
#include "desktop/map/projected_lines.h"

namespace oxhost::desktop {

/// Lines by the number of their scene, longitude and latitude on WGS 84.
using placed_lines = std::vector<std::pair<std::size_t, polyline>>;

class map_view final : public QWidget {
    Q_OBJECT
public:
    explicit map_view(document& shown, QWidget* parent = nullptr);

    /// Throws std::invalid_argument for a text that PROJ refuses, and stays as it is.
    void set_system(const std::string& proj4);
    const std::string& system() const { return lines_.system(); }
    const std::vector<std::string>& projections() const { return lines_.projections(); }
    void fit_all();
    void fit_selection();
    void show_before(placed_lines lines);          ///< pale, where they were; empty takes them away
    void show_candidate(const polyline& degrees);  ///< where a line might lie; empty takes it away
    void go_to(point degrees);                     ///< with a mark

    const map_scale& scale() const { return scale_; }
    bool complete() const { return lines_.complete(); }
    QSize sizeHint() const override { return {640, 480}; }

Q_SIGNALS:
    void pointed(const QString& caption_and_coordinates);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    enum class dragging { nothing, moves, zooms, selects };
    void name_texts();
    void begin_again();
    void draw_again();  ///< the picture is out of date
    void draw_lines(QPainter& painter);
    void draw_over(QPainter& painter);
    void draw_legend(QPainter& painter);
    void draw_path(QPainter& painter, const std::vector<point>& places) const;
    polyline on_map(const polyline& degrees) const;
    void point_at(QPointF pixel);
    std::optional<std::size_t> line_at(QPointF pixel);
    void end_rectangle(const QRectF& chosen);

    document& document_;
    projected_lines lines_;
    map_ground ground_;
    map_scale scale_;
    QImage picture_;
    bool picture_is_old_ = true;
    bool fitted_ = false;  ///< the person has not moved it since the lines came
    dragging drag_ = dragging::nothing;
    QPointF pressed_, last_;
    bool moved_ = false;
    placed_lines before_;  ///< in degrees
    std::vector<polyline> before_on_map_;
    polyline candidate_;
    std::optional<point> mark_;
    std::optional<std::size_t> hovered_;
};

}  // namespace oxhost::desktop
