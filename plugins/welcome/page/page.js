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
    byId("examples").replaceChildren(...data.examples.map(exampleItem));
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
    return element("li", {}, button);
}

// ---- Recent projects ----

function fileParts(path)
{
    const at = Math.max(path.lastIndexOf("/"), path.lastIndexOf("\\"));
    const file = path.slice(at + 1);
    return {name: file.replace(/\.(kelpa|kelpapack)$/i, "") || file, folder: path.slice(0, Math.max(at, 0))};
}

function smallButton(name, label, action)
{
    const button = element("button", {type: "button", className: "small", title: label, onclick: action});
    button.setAttribute("aria-label", label);
    button.append(icon(name));
    return button;
}

function recentItem(path)
{
    const {name, folder} = fileParts(path);
    const open = element("button", {type: "button", className: "open", title: path},
        icon("project"),
        element("strong", {textContent: name}),
        element("span", {textContent: folder}));
    open.onclick = () => ask("openFile", path);
    const item = element("li", {}, open,
        smallButton("show", text("show", name), () => ask("showInExplorer", path)),
        smallButton("remove", text("remove", name), () => removeRecent(item)));
    item.dataset.path = path;
    return item;
}

function removeRecent(item)
{
    if (!program)
        return;
    say(text("removed", fileParts(item.dataset.path).name));
    ask("removeFile", item.dataset.path);
}

// The focus stays at its place in the list, also when what had it is gone.
function showRecent(paths)
{
    const list = byId("recent");
    const items = [...list.children];
    const at = items.findIndex(item => item.contains(document.activeElement));
    const part = at < 0 ? -1 : [...items[at].children].indexOf(document.activeElement);
    list.replaceChildren(...paths.map(recentItem));
    list.hidden = paths.length === 0;
    byId("no-recent").hidden = paths.length !== 0;
    if (at < 0)
        return;
    const next = list.children[Math.min(at, paths.length - 1)];
    (next ? next.children[part] : document.querySelector("[data-command]")).focus();
}

// Up, Down, Home and End walk the list, Delete removes.
function onRecentKey(event)
{
    const items = [...byId("recent").children];
    const at = items.findIndex(item => item.contains(event.target));
    const goals = {ArrowUp: at - 1, ArrowDown: at + 1, Home: 0, End: items.length - 1};
    if (event.key === "Delete")
        removeRecent(items[at]);
    else if (event.key in goals)
        items[goals[event.key]]?.firstElementChild.focus();
    else
        return;
    event.preventDefault();
}

// ---- What the program knows ----

function showLinks(urls)
{
    byId("links").replaceChildren(...["homepage", "community", "demo", "youtube", "facebook"]
        .filter(name => urls[name])
        .map(name => {
            const link = element("a", {href: urls[name], textContent: text(name)});
            link.onclick = event => {
                event.preventDefault();
                ask("openURL", urls[name]);
            };
            return link;
        }));
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

function setConnected(connected)
{
    document.body.classList.toggle("lost", !connected);
    for (const button of document.querySelectorAll("[data-command]"))
        button.setAttribute("aria-disabled", String(!connected));
}

function onObjects(channel)
{
    program = channel.objects.kpwelcome ?? null;
    if (!program)
        return;
    delay = firstDelay;
    setConnected(true);
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
    setConnected(false);
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
window.addEventListener("pagedata", () => {
    applyData();
    fetchAll();
});
applyData();
connect();

})();
