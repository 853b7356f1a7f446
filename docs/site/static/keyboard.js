// The theme opens its menus by labels of hidden boxes, which no key reaches: they become buttons. The
// first key leads past the menu to the text.
document.addEventListener("DOMContentLoaded", () => {
  for (const label of document.querySelectorAll("label:not(.overlay)")) {
    label.tabIndex = 0;
    label.setAttribute("role", "button");
    label.addEventListener("keydown", (event) => {
      if (event.key !== "Enter" && event.key !== " ") return;
      event.preventDefault();
      label.click();
    });
  }
  const text = document.querySelector("[role=main]");
  text.id ||= "text";
  const skip = document.createElement("a");
  skip.className = "skip";
  skip.href = "#" + text.id;
  skip.textContent = "To the text";
  document.body.prepend(skip);
});
