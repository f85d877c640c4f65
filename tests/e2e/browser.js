// SPDX-License-Identifier: MIT
// browser.js PROGRAM WIDTH HEIGHT: a browser that does what the lines of the standard input say, and answers each.
"use strict";

const { chromium } = require("playwright-core");
const readline = require("node:readline");

// X11's names, where the browser's are others.
const keys = { Return: "Enter", Left: "ArrowLeft", Right: "ArrowRight", Up: "ArrowUp", Down: "ArrowDown" };

async function main() {
    const [executablePath, width, height] = process.argv.slice(2);
    // Root may have no sandbox, and the one page is our own.
    const browser = await chromium.launch({ executablePath, chromiumSandbox: false });
    const page = await browser.newPage({ viewport: { width: Number(width), height: Number(height) } });
    const problems = [];
    page.on("pageerror", error => problems.push(error.message));
    const does = {
        open: address => page.goto(address),
        press: key => page.keyboard.press(keys[key] ?? key),
        picture: path => page.screenshot({ path }),
        text: () => page.locator("body").innerText(),
    };
    for await (const line of readline.createInterface({ input: process.stdin })) {
        const [verb, argument] = line.split(" ");
        let answer = "";
        try {
            const result = await does[verb](argument);
            answer = typeof result === "string" ? result.trim() : "";
        } catch (error) {
            problems.push(error.message);
        }
        console.log(JSON.stringify({ answer, problems }));
    }
    await browser.close();
}

main();
