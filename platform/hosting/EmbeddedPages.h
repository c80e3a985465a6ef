#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/hosting/PageEngine.h"
#include "platform/hosting/PageSwipe.h"
#include "platform/render/Scene.h"
#include "platform/webkit/WebContent.h"

namespace quorix::hosting {

/// The web content of an embed with the engine that shows it: loads what the content loads, passes
/// on what the page asks for, and limits how long a load or an answer may take. Main thread.
class EmbeddedPage final : private PageEngine::Client {
 public:
  /// Shows the page. `pageHangs` and `pageEnded` are called outside the engine's own calls.
  class Owner {
   public:
    /// Null where no engine can show a page.
    virtual std::unique_ptr<PageEngine> openPage(const render::EmbedItem& embed,
                                                 PageEngine::Client& client) = 0;
    /// The page did not answer after a key that closes the sheet.
    virtual void pageHangs() = 0;
    /// The page shows nothing any more, and takes no keys.
    virtual void pageEnded() = 0;
    /// Swipes are mirrored.
    virtual bool isRightToLeft() const = 0;

   protected:
    ~Owner() = default;
  };

  /// Null where the engine cannot show it. `owner` outlives the page.
  static std::unique_ptr<EmbeddedPage> open(const render::EmbedItem& embed, Owner& owner);
  ~EmbeddedPage();
  EmbeddedPage(const EmbeddedPage&) = delete;
  EmbeddedPage& operator=(const EmbeddedPage&) = delete;

  const render::Embed* content() const { return content_.get(); }
  PageEngine& engine() const { return *engine_; }

  /// Takes a key that the page left over and that leads back or forward. False when it is another,
  /// or leads nowhere. `tries` only asks.
  bool takes(Key key, bool tries);

 private:
  /// Runs its work after a time, unless it is reset before.
  using Limit = std::shared_ptr<std::function<void()>>;

  EmbeddedPage(std::shared_ptr<webkit::WebContent> content, Owner& owner)
      : content_(std::move(content)), owner_(owner) {}

  static void start(Limit& limit, std::chrono::milliseconds after, std::function<void()> work);
  void later(std::function<void()> work);
  void expectAnswer(std::function<void()> then);
  HistoryStep stepOf(SwipeDirection direction) const;
  bool leadsSomewhere(SwipeDirection direction) const;
  void go(SwipeDirection direction);
  void loadFailed();
  bool swipes(const TouchEvent& event);

  bool mayNavigate(std::string_view scheme, std::string_view address, bool mainFrame) override;
  void windowAsked(std::string_view address, bool byUser) override;
  void loading(int percent) override;
  void loadEnded(int error) override;
  void processEnded() override;
  void answered(std::string_view answer) override;
  void gestured() override { gesture_.happened(webkit::UserGesture::Clock::now()); }
  void closingKeyGiven() override { expectAnswer({}); }
  bool touched(const TouchEvent& event) override;
  void scrolled(const TrackpadEvent& event) override;

  std::shared_ptr<webkit::WebContent> content_;
  Owner& owner_;
  std::shared_ptr<EmbeddedPage*> alive_ = std::make_shared<EmbeddedPage*>(this);
  std::chrono::milliseconds patience_ = foundation::URLRequest::defaultTimeout;  ///< of a load
  Limit standstill_;   ///< since the load last moved on
  bool came_ = false;  ///< something of the load arrived
  Limit silence_;      ///< since the page was asked
  std::function<void()> onAnswer_;
  webkit::UserGesture gesture_;
  EdgeSwipe edgeSwipe_;
  bool hasFingers_ = false;  ///< they swipe: the page does not get them
  TrackpadSwipe trackpadSwipe_;
  std::optional<SwipeDirection> askedFor_;  ///< until the page says whether it used the scrolling
  std::unique_ptr<PageEngine> engine_;
};

/// Where a page stands in a sheet's panel, in points. The top of its room is on a whole device
/// pixel.
struct PagePlace {
  layout::Rect room;     ///< where it takes input: below the panel's rounded corners
  double strip = 0;      ///< the height of the part above the room, which only shows
  double radius = 0;     ///< of the strip's upper corners
  bool isAtTop = false;  ///< the strip covers the panel's top, with both corners

  /// `clips`: the toolkit can cut a page to rounded corners. Otherwise the page has no strip.
  static PagePlace of(const render::EmbedItem& embed, const render::Scene& panel, double scale,
                      bool clips);
};

/// The live pages of one scene. Main thread.
class EmbeddedPages {
 public:
  explicit EmbeddedPages(EmbeddedPage::Owner& owner) : owner_(owner) {}

  static bool hasPages(const render::Scene& scene);
  /// Opens what is new in `scene` and closes what is no longer there. False when a page could
  /// not be opened.
  bool follow(const render::Scene& scene);
  /// Tells where each page stands in `panel`, from the bottom up, which is also the order of the
  /// keyboard focus.
  void place(const render::Scene& panel, double scale, bool clips,
             const std::function<void(PageEngine&, const PagePlace&)>& at) const;
  /// Opens the addresses of the pages in `scene` outside the app.
  static void sendOutside(const render::Scene& scene);

  bool takes(Key key, bool tries = false);
  /// From the bottom up.
  std::vector<PageEngine*> shown() const;

 private:
  EmbeddedPage::Owner& owner_;
  std::vector<std::unique_ptr<EmbeddedPage>> pages_;
};

}  // namespace quorix::hosting
