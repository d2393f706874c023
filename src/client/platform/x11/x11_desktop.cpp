#include "client/platform/x11/x11_desktop.h"

#include <algorithm>
#include <chrono>
#include <set>
#include <string>
#include <string_view>

#include "client/platform/x11/sdl_window.h"
#include "core/ansi.h"

namespace qf::client {

namespace {

constexpr std::chrono::milliseconds ForegroundWait{500};

// Frames of window managers are a few windows deep.
constexpr int DeepestFrame = 4;

// The source indication of a program that acts for the user.
constexpr std::uint32_t SourcePager = 2;

/// The class is the second of the two texts, each ended by a NUL.
std::string ClassPart(const std::optional<X11Property>& wmClass)
{
    if (!wmClass) {
        return {};
    }
    const std::string_view both = wmClass->text;
    const std::size_t      first = both.find('\0');
    if (first == std::string_view::npos) {
        return {};
    }
    const std::string_view rest = both.substr(first + 1);
    return std::string(rest.substr(0, rest.find('\0')));
}

std::uint32_t FirstNumber(const std::optional<X11Property>& property)
{
    return property && !property->numbers.empty() ? property->numbers.front() : 0;
}

} // namespace

X11Desktop::ManagerRequest X11Desktop::AskForManager() const
{
    const xcb_atom_t check = connection_.Atoms().netSupportingWmCheck;
    // The window that the manager named last is asked along, which saves a round trip at every command.
    return {connection_.Ask(connection_.Root(), check, XCB_ATOM_WINDOW),
            connection_.Ask(manager_ != XCB_WINDOW_NONE ? manager_ : connection_.Root(), check, XCB_ATOM_WINDOW),
            manager_};
}

bool X11Desktop::ManagerRuns(const ManagerRequest& request)
{
    const xcb_window_t named = FirstNumber(connection_.Take(request.named));
    xcb_window_t       confirmed = FirstNumber(connection_.Take(request.confirmed));
    if (named == XCB_WINDOW_NONE) {
        return false;
    }
    if (named != request.window) {
        const auto again = connection_.Ask(named, connection_.Atoms().netSupportingWmCheck, XCB_ATOM_WINDOW);
        confirmed = FirstNumber(connection_.Take(again));
        manager_ = named;
    }
    // A manager that ended without tidying up leaves the root's property behind, but not its own window.
    return confirmed == named;
}

bool X11Desktop::ManagerSupports(xcb_atom_t feature) const
{
    const auto request = connection_.Ask(connection_.Root(), connection_.Atoms().netSupported, XCB_ATOM_ATOM);
    const auto supported = connection_.Take(request);
    return supported &&
           std::find(supported->numbers.begin(), supported->numbers.end(), feature) != supported->numbers.end();
}

std::vector<X11Desktop::WindowRequest> X11Desktop::AskFor(const std::vector<xcb_window_t>& windows) const
{
    const X11Atoms&            atoms = connection_.Atoms();
    std::vector<WindowRequest> requests;
    requests.reserve(windows.size());
    for (const xcb_window_t window : windows) {
        requests.push_back({window, connection_.Ask(window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING),
                            connection_.Ask(window, atoms.netWmName, atoms.utf8String),
                            connection_.Ask(window, XCB_ATOM_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY),
                            connection_.Ask(window, atoms.netWmPid, XCB_ATOM_CARDINAL)});
    }
    return requests;
}

std::vector<WindowInfo> X11Desktop::Windows()
{
    // Between two commands the desktop is mostly the same, so the windows of the last time are asked for
    // together with the list, and once more only where the list is another one.
    std::vector<WindowRequest> requests = AskFor(last_);
    std::vector<xcb_window_t>  handles = Handles();
    if (handles != last_) {
        for (const WindowRequest& request : requests) {
            for (const auto property : {request.wmClass, request.netName, request.name, request.process}) {
                xcb_discard_reply(connection_.Raw(), property.sequence);
            }
        }
        requests = AskFor(handles);
        last_ = std::move(handles);
    }

    std::vector<WindowInfo>                      windows;
    std::set<std::pair<xcb_window_t, ProcessId>> seen;
    for (const WindowRequest& request : requests) {
        const auto wmClass = connection_.Take(request.wmClass);
        const auto netName = connection_.Take(request.netName);
        const auto name = connection_.Take(request.name);
        const auto process = FirstNumber(connection_.Take(request.process));

        WindowInfo info;
        info.handle = request.window;
        info.className = ClassPart(wmClass);
        if (!IsKnownClientClass(info.className)) {
            seen.emplace(request.window, process);
            if (IsSdl(request.window, process)) {
                info.className = window_class::Sdl;
            }
        }
        if (netName) {
            info.title = core::ToAnsi(netName->text);
        } else if (name) {
            // Text of the older type is Latin-1, whose printed characters are those of the ANSI page.
            info.title = name->type == connection_.Atoms().utf8String ? core::ToAnsi(name->text) : name->text;
        }
        windows.push_back(std::move(info));
    }
    std::erase_if(sdl_, [&seen](const auto& known) { return seen.count(known.first) == 0; });
    return windows;
}

bool X11Desktop::IsSdl(xcb_window_t window, ProcessId process)
{
    const auto key = std::make_pair(window, process);
    const auto known = sdl_.find(key);
    if (known != sdl_.end()) {
        return known->second;
    }
    return sdl_[key] = ProcessUsesSdl(process);
}

std::vector<xcb_window_t> X11Desktop::Handles()
{
    xcb_connection_t* raw = connection_.Raw();
    const auto        manager = AskForManager();
    const auto        stacking =
        connection_.Ask(connection_.Root(), connection_.Atoms().netClientListStacking, XCB_ATOM_WINDOW);
    const auto                          children = xcb_query_tree(raw, connection_.Root());
    const bool                          managed = ManagerRuns(manager);
    const auto                          listed = connection_.Take(stacking);
    const Reply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(raw, children, nullptr));
    if (managed && listed) {
        return {listed->numbers.rbegin(), listed->numbers.rend()};
    }
    std::vector<xcb_window_t> windows = ClientsAmong(tree, DeepestFrame);
    if (managed) {
        std::erase(windows, manager_);
    }
    return windows;
}

/// The viewable children, the topmost first; in place of a frame the client window in it. A child that
/// neither is a client window nor holds one counts as a window itself on the desktop alone.
std::vector<xcb_window_t> X11Desktop::ClientsAmong(const Reply<xcb_query_tree_reply_t>& tree, int depth) const
{
    struct Request {
        xcb_window_t                       window;
        xcb_get_window_attributes_cookie_t attributes;
        xcb_get_property_cookie_t          state;
        xcb_get_property_cookie_t          wmClass;
    };

    if (!tree) {
        return {};
    }
    std::vector<Request> requests;
    const xcb_window_t*  first = xcb_query_tree_children(tree.get());
    for (int i = xcb_query_tree_children_length(tree.get()); i-- > 0;) {
        requests.push_back({first[i], xcb_get_window_attributes(connection_.Raw(), first[i]),
                            connection_.Ask(first[i], connection_.Atoms().wmState, XCB_GET_PROPERTY_TYPE_ANY),
                            connection_.Ask(first[i], XCB_ATOM_WM_CLASS, XCB_ATOM_STRING)});
    }

    std::vector<xcb_window_t> clients;
    for (const Request& request : requests) {
        const Reply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(connection_.Raw(), request.attributes, nullptr));
        const bool hasState = connection_.Take(request.state).has_value();
        const bool hasClass = connection_.Take(request.wmClass).has_value();
        if (!attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE ||
            attributes->_class != XCB_WINDOW_CLASS_INPUT_OUTPUT) {
            continue;
        }
        const bool onDesktop = depth == DeepestFrame;
        if (hasState || (onDesktop && hasClass)) {
            clients.push_back(request.window);
            continue;
        }
        const xcb_window_t inside = ClientInside(request.window, depth - 1);
        if (inside != XCB_WINDOW_NONE) {
            clients.push_back(inside);
        } else if (onDesktop) {
            clients.push_back(request.window);
        }
    }
    return clients;
}

xcb_window_t X11Desktop::ClientInside(xcb_window_t window, int depth) const
{
    if (depth == 0) {
        return XCB_WINDOW_NONE;
    }
    const auto                children = xcb_query_tree(connection_.Raw(), window);
    std::vector<xcb_window_t> clients =
        ClientsAmong(Reply<xcb_query_tree_reply_t>(xcb_query_tree_reply(connection_.Raw(), children, nullptr)), depth);
    return clients.empty() ? xcb_window_t{XCB_WINDOW_NONE} : clients.front();
}

xcb_window_t X11Desktop::TopLevelOf(xcb_window_t window) const
{
    xcb_window_t current = window;
    while (current != XCB_WINDOW_NONE && current != connection_.Root()) {
        const auto parent = xcb_query_tree(connection_.Raw(), current);
        const auto state = connection_.Ask(current, connection_.Atoms().wmState, XCB_GET_PROPERTY_TYPE_ANY);
        const auto wmClass = connection_.Ask(current, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING);
        const Reply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(connection_.Raw(), parent, nullptr));
        const bool                          hasState = connection_.Take(state).has_value();
        const bool                          hasClass = connection_.Take(wmClass).has_value();
        if (!tree) {
            return XCB_WINDOW_NONE;
        }
        if (hasState) {
            return current;
        }
        if (tree->parent == connection_.Root()) {
            // The focus may rest on the frame of the client window.
            const xcb_window_t inside =
                hasClass ? xcb_window_t{XCB_WINDOW_NONE} : ClientInside(current, DeepestFrame - 1);
            return inside != XCB_WINDOW_NONE ? inside : current;
        }
        current = tree->parent;
    }
    return XCB_WINDOW_NONE;
}

xcb_window_t X11Desktop::Foreground()
{
    const auto manager = AskForManager();
    const auto active = connection_.Ask(connection_.Root(), connection_.Atoms().netActiveWindow, XCB_ATOM_WINDOW);
    const auto focus = xcb_get_input_focus(connection_.Raw());
    const bool managed = ManagerRuns(manager);
    const auto activeReply = connection_.Take(active);

    const Reply<xcb_get_input_focus_reply_t> focused(xcb_get_input_focus_reply(connection_.Raw(), focus, nullptr));
    // A manager that keeps the property may not have set it yet, and then no window is in front.
    if (managed && (activeReply || ManagerSupports(connection_.Atoms().netActiveWindow))) {
        return FirstNumber(activeReply);
    }
    if (!focused || focused->focus == XCB_INPUT_FOCUS_NONE || focused->focus == XCB_INPUT_FOCUS_POINTER_ROOT) {
        return XCB_WINDOW_NONE;
    }
    return TopLevelOf(focused->focus);
}

void X11Desktop::BringToForeground(xcb_window_t window)
{
    if (!Exists(window)) {
        return;
    }
    // What is typed at a window without the focus is lost, so a manager that takes its time is waited for.
    connection_.SelectEvents(connection_.Root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    if (ManagerRuns(AskForManager())) {
        connection_.SendClientMessage(
            connection_.Root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, window,
            connection_.Atoms().netActiveWindow, SourcePager, XCB_CURRENT_TIME, XCB_WINDOW_NONE);
    } else {
        const std::uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(connection_.Raw(), window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
        xcb_set_input_focus(connection_.Raw(), XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    }
    connection_.WaitUntil(ForegroundWait, [this, window] { return Foreground() == window || !Exists(window); });
    connection_.SelectEvents(connection_.Root(), XCB_EVENT_MASK_NO_EVENT);
    connection_.Flush();
}

bool X11Desktop::Exists(xcb_window_t window) const
{
    const auto request = xcb_get_window_attributes(connection_.Raw(), window);
    return Reply<xcb_get_window_attributes_reply_t>(
               xcb_get_window_attributes_reply(connection_.Raw(), request, nullptr)) != nullptr;
}

ProcessId X11Desktop::ProcessOf(xcb_window_t window) const
{
    return FirstNumber(connection_.Take(connection_.Ask(window, connection_.Atoms().netWmPid, XCB_ATOM_CARDINAL)));
}

} // namespace qf::client
