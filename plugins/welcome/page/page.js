// SPDX-License-Identifier: MIT
// The home page: what it shows it asks of the program's object "kpwelcome" on the web channel, and all it can do
// is call that object.
"use strict";

(() => {

const firstDelay = 250; // milliseconds before the program is tried again; doubled each time
const lastDelay = 8000;

let program = null; // the object on the channel, while there is a connection
let delay = firstDelay;
let wasLost = false;
const leaving = new Set(); // paths whose removal the list has not shown yet

const byId = id => document.getElementById(id);
const text = (name, ...values) =>
    values.reduce((result, value) => result.replace("%1", () => value), window.pageData.texts[name] ?? "");

function element(tag, properties = {}, ...children)
{
    const result = document.createElement(tag);
    Object.assign(result, properties);
    result.append(...children);
    return result;
}

function icon(name)
{
    const svg = document.createElementNS("http://www.w3.org/2000/svg", "svg");
    const use = document.createElementNS("http://www.w3.org/2000/svg", "use");
    use.setAttribute("href", "#icon-" + name);
    svg.setAttribute("aria-hidden", "true");
    svg.append(use);
    return svg;
}

function say(message)
{
    byId("status").textContent = message;
}

// Fills a list anew. The focus stays on what it was on, or at its place in the list when that is gone.
function refill(list, items)
{
    const controls = item => [item, ...item.querySelectorAll("*")].filter(part => part.matches("button, a"));
    const old = [...list.children];
    const at = old.findIndex(item => item.contains(document.activeElement));
    const part = at < 0 ? -1 : controls(old[at]).indexOf(document.activeElement);
    list.replaceChildren(...items);
    showConnection();
    if (at < 0)
        return;
    const next = items.find(item => item.dataset.path === old[at].dataset.path)
        ?? items[Math.min(at, items.length - 1)];
    (next ? controls(next)[part] : document.querySelector("[data-command]")).focus();
}

// Without the program nothing happens; the page has said so already.
function ask(method, ...values)
{
    if (program)
        program[method](...values);
}

// ---- What comes with the page ----

function applyData()
{
    const data = window.pageData;
    document.documentElement.dir = data.direction;
    document.documentElement.style.colorScheme = data.scheme;
    for (const [name, value] of Object.entries(data.colours))
        document.documentElement.style.setProperty("--" + name, value);
    document.documentElement.style.setProperty("--font", JSON.stringify(data.font));
    for (const target of document.querySelectorAll("[data-text]"))
        target.textContent = text(target.dataset.text);
    for (const target of document.querySelectorAll("[data-label]"))
        target.setAttribute("aria-label", text(target.dataset.label));
    for (const button of document.querySelectorAll("[data-command]"))
        applyCommand(button, data.commands[button.dataset.command]);
    refill(byId("examples"), data.examples.map(exampleItem));
    document.body.hidden = false;
}

function applyCommand(button, command)
{
    button.onclick = () => ask("callbackTunnelAsync", command.id);
    button.querySelector("kbd").textContent = command.keys;
    button.querySelector("kbd").hidden = command.keys === "";
}

function exampleItem(example)
{
    const button = element("button", {type: "button", className: "example"},
        element("img", {src: example.picture, alt: ""}),
        element("strong", {textContent: example.title}),
        element("span", {textContent: example.description}));
    button.onclick = () => ask("openFile", example.file);
    const item = element("li", {}, button);
    item.dataset.path = example.file;
    return item;
}

// ---- Recent projects ----

function fileParts(path)
{
    const at = Math.max(path.lastIndexOf("/"), path.lastIndexOf("\\"));
    const file = path.slice(at + 1);
    return {name: file.replace(/\.(kelpa|kelpapack)$/i, "") || file, folder: path.slice(0, Math.max(at, 0))};
}

// Its label names the project, its description the folder: two projects may have one name.
function smallButton(name, label, folderId, action)
{
    const button = element("button", {type: "button", className: "small", title: label, onclick: action});
    button.setAttribute("aria-label", label);
    button.setAttribute("aria-describedby", folderId);
    button.append(icon(name));
    return button;
}

function recentItem(path, index)
{
    const {name, folder} = fileParts(path);
    const folderId = "folder-" + index;
    const open = element("button", {type: "button", className: "open", title: path},
        icon("project"),
        element("strong", {textContent: name}),
        element("span", {id: folderId, textContent: folder}));
    open.onclick = () => ask("openFile", path);
    const show = smallButton("show", text("show", name), folderId, () => ask("showInExplorer", path));
    const remove = smallButton("remove", text("remove", name), folderId, event => {
        if (event.detail < 2) // the second click of a double click meets the next project
            removeRecent(path);
    });
    remove.setAttribute("aria-keyshortcuts", "Delete");
    const item = element("li", {}, open, show, remove);
    item.dataset.path = path;
    return item;
}

function removeRecent(path)
{
    if (!program)
        return;
    leaving.add(path);
    say("");
    ask("removeFile", path);
}

function sayRemoved(paths)
{
    const gone = [...leaving].filter(path => !paths.includes(path));
    if (gone.length !== 0)
        say(gone.map(path => text("removed", fileParts(path).name)).join(" "));
    for (const path of gone)
        leaving.delete(path);
}

function showRecent(paths)
{
    refill(byId("recent"), paths.map(recentItem));
    byId("recent").hidden = paths.length === 0;
    byId("no-recent").hidden = paths.length !== 0;
    sayRemoved(paths);
}

// Up, Down, Home and End walk the list, Delete removes.
function onRecentKey(event)
{
    if (event.ctrlKey || event.altKey || event.metaKey)
        return;
    const items = [...byId("recent").children];
    const at = items.findIndex(item => item.contains(event.target));
    const goals = {ArrowUp: at - 1, ArrowDown: at + 1, Home: 0, End: items.length - 1};
    if (event.key === "Delete")
        removeRecent(items[at].dataset.path);
    else if (event.key in goals)
        items[goals[event.key]]?.firstElementChild.focus();
    else
        return;
    event.preventDefault();
}

// ---- What the program knows ----

function link(name, url)
{
    const result = element("a", {href: url, textContent: text(name)});
    result.dataset.path = url;
    result.onclick = event => {
        event.preventDefault();
        ask("openURL", url);
    };
    return result;
}

function showLinks(urls)
{
    const names = ["homepage", "community", "demo", "youtube", "facebook"].filter(name => urls[name]);
    refill(byId("links"), names.map(name => link(name, urls[name])));
}

// Two frames on, the list is on the screen; who waits for the page waits for its title.
function announce()
{
    const showTitle = () => { document.title = text("title"); };
    requestAnimationFrame(() => requestAnimationFrame(showTitle));
}

function fetchRecent()
{
    ask("getRecentFileList", paths => {
        showRecent(paths);
        announce();
    });
}

function fetchAll()
{
    fetchRecent();
    ask("getResourceUrls", showLinks);
    ask("callbackAsyncfromJS", "WelcomeScreen.getBuildNumber", "",
        number => { byId("version").textContent = text("version", number); });
    ask("callbackAsyncfromJS", "WelcomeScreen.getLocale", "",
        locale => { document.documentElement.lang = locale.replace("_", "-"); });
}

// ---- The connection ----

function showConnection()
{
    document.body.classList.toggle("lost", !program);
    for (const control of document.querySelectorAll("button, a"))
        control.setAttribute("aria-disabled", String(!program));
}

// A program without the object is as good as lost; the next time it may have it.
function onObjects(channel)
{
    program = channel.objects.kpwelcome ?? null;
    if (!program) {
        channel.transport.close(); // and onLost says so
        return;
    }
    delay = firstDelay;
    showConnection();
    if (wasLost)
        say(text("found"));
    wasLost = false;
    program.resetRecentFiles.connect(fetchRecent);
    fetchAll();
}

function onLost()
{
    program = null;
    wasLost = true;
    showConnection();
    say(text("lost"));
    setTimeout(connect, delay);
    delay = Math.min(delay * 2, lastDelay);
}

function connect()
{
    const socket = new WebSocket(window.pageData.server);
    socket.onopen = () => new QWebChannel(socket, onObjects);
    socket.onclose = onLost;
}

byId("recent").addEventListener("keydown", onRecentKey);
window.addEventListener("wheel", event => {
    if (event.ctrlKey) // the size of the page is that of the program
        event.preventDefault();
}, {passive: false});
window.addEventListener("pagedata", () => {
    applyData();
    fetchAll();
});
applyData();
connect();

})();
