<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>Command</name>
    <message>
        <source>Pi&amp;xel</source>
        <translation>ドット(&amp;X)</translation>
    </message>
    <message>
        <source>Plot Pixel
Pixel</source>
        <translation>ドットを打ちます
ドット</translation>
    </message>
    <message>
        <source>&amp;Box</source>
        <translation>四角形(&amp;B)</translation>
    </message>
    <message>
        <source>Draw Box
Box</source>
        <translation>四角形を描きます
四角形</translation>
    </message>
    <message>
        <source>B&amp;ox Fill</source>
        <translation>四角形塗りつぶし(&amp;O)</translation>
    </message>
    <message>
        <source>Draw Box Fill
Box Fill</source>
        <translation>塗りつぶした四角形を描きます
四角形塗りつぶし</translation>
    </message>
    <message>
        <source>&amp;Circle</source>
        <translation>円(&amp;C)</translation>
    </message>
    <message>
        <source>Draw Circle
Circle</source>
        <translation>円を描きます
円</translation>
    </message>
    <message>
        <source>C&amp;ircle Fill</source>
        <translation>円塗りつぶし(&amp;I)</translation>
    </message>
    <message>
        <source>Draw Circle Fill
Circle Fill</source>
        <translation>塗りつぶした円を描きます
円塗りつぶし</translation>
    </message>
    <message>
        <source>&amp;Paint</source>
        <translation>塗りつぶし(&amp;P)</translation>
    </message>
    <message>
        <source>Paint
Paint</source>
        <translation>つながった同じ色の部分を塗りつぶします
塗りつぶし</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom In
Zoom In</source>
        <translation>表示を拡大します
拡大</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>Zoom Out
Zoom Out</source>
        <translation>表示を縮小します
縮小</translation>
    </message>
    <message>
        <source>Pe&amp;n</source>
        <translation>ペン(&amp;N)</translation>
    </message>
    <message>
        <source>Draw Pen
Pen</source>
        <translation>ペンで線を描きます
ペン</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>直線(&amp;L)</translation>
    </message>
    <message>
        <source>Draw Line
Line</source>
        <translation>直線を描きます
直線</translation>
    </message>
    <message>
        <source>&amp;Grid</source>
        <translation>グリッド(&amp;G)</translation>
    </message>
    <message>
        <source>Show or hide the grid lines.
Toggle Grid</source>
        <translation>グリッド線の表示と非表示を切り替えます。
グリッドの切り替え</translation>
    </message>
    <message>
        <source>C&amp;lose Palette</source>
        <translation>パレットを閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>Close the active palette
Close Palette</source>
        <translation>現在のパレットを閉じます
パレットを閉じる</translation>
    </message>
    <message>
        <source>Sa&amp;ve Palette</source>
        <translation>パレットを保存(&amp;V)</translation>
    </message>
    <message>
        <source>Save the active palette
Save Palette</source>
        <translation>現在のパレットを保存します
パレットを保存</translation>
    </message>
    <message>
        <source>Save Palet&amp;te As...</source>
        <translation>名前を付けてパレットを保存(&amp;T)...</translation>
    </message>
    <message>
        <source>Save the active palette with a new name
Save Palette As</source>
        <translation>現在のパレットに新しい名前を付けて保存します
名前を付けてパレットを保存</translation>
    </message>
    <message>
        <source>Open &amp;Palette...</source>
        <translation>パレットを開く(&amp;P)...</translation>
    </message>
    <message>
        <source>Open an existing palette
Open Palette</source>
        <translation>既存のパレットを開きます
パレットを開く</translation>
    </message>
    <message>
        <source>A&amp;ttach</source>
        <translation>割り当て(&amp;T)</translation>
    </message>
    <message>
        <source>Attach to active TMF
Attach</source>
        <translation>現在のパレットを作業中の TMF に割り当てます
割り当て</translation>
    </message>
    <message>
        <source>x1</source>
        <translation>1 倍</translation>
    </message>
    <message>
        <source>100%
100%</source>
        <translation>100% で表示します
100%</translation>
    </message>
    <message>
        <source>x2</source>
        <translation>2 倍</translation>
    </message>
    <message>
        <source>200%
200%</source>
        <translation>200% で表示します
200%</translation>
    </message>
    <message>
        <source>x3</source>
        <translation>3 倍</translation>
    </message>
    <message>
        <source>300%
300%</source>
        <translation>300% で表示します
300%</translation>
    </message>
    <message>
        <source>x4</source>
        <translation>4 倍</translation>
    </message>
    <message>
        <source>400%
400%</source>
        <translation>400% で表示します
400%</translation>
    </message>
    <message>
        <source>x6</source>
        <translation>6 倍</translation>
    </message>
    <message>
        <source>600%
600%</source>
        <translation>600% で表示します
600%</translation>
    </message>
    <message>
        <source>x8</source>
        <translation>8 倍</translation>
    </message>
    <message>
        <source>800%
800%</source>
        <translation>800% で表示します
800%</translation>
    </message>
    <message>
        <source>x12</source>
        <translation>12 倍</translation>
    </message>
    <message>
        <source>1200%
1200%</source>
        <translation>1200% で表示します
1200%</translation>
    </message>
    <message>
        <source>x16</source>
        <translation>16 倍</translation>
    </message>
    <message>
        <source>1600%
1600%</source>
        <translation>1600% で表示します
1600%</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Open an existing document
Open</source>
        <translation>既存のファイルを開きます
開く</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Close the active document
Close</source>
        <translation>作業中のファイルを閉じます
閉じる</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>上書き保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save the active document
Save</source>
        <translation>作業中のファイルを保存します
上書き保存</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>名前を付けて保存(&amp;A)...</translation>
    </message>
    <message>
        <source>Save the active document with a new name
Save As</source>
        <translation>作業中のファイルに新しい名前を付けて保存します
名前を付けて保存</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Undo the last action
Undo</source>
        <translation>直前の操作を元に戻します
元に戻す</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Redo the previously undone action
Redo</source>
        <translation>元に戻した操作をやり直します
やり直し</translation>
    </message>
    <message>
        <source>&amp;Arrange Icons</source>
        <translation>アイコンの整列(&amp;A)</translation>
    </message>
    <message>
        <source>Arrange minimized windows at the bottom
Arrange Icons</source>
        <translation>最小化したウィンドウを下端に整列します
アイコンの整列</translation>
    </message>
    <message>
        <source>&amp;Cascade</source>
        <translation>重ねて表示(&amp;C)</translation>
    </message>
    <message>
        <source>Arrange windows so that they overlap
Cascade</source>
        <translation>ウィンドウを重ねて並べます
重ねて表示</translation>
    </message>
    <message>
        <source>Tile &amp;Horizontally</source>
        <translation>上下に並べて表示(&amp;H)</translation>
    </message>
    <message>
        <source>Arrange windows one above the other
Tile Horizontally</source>
        <translation>ウィンドウを上下に並べます
上下に並べて表示</translation>
    </message>
    <message>
        <source>Tile &amp;Vertically</source>
        <translation>左右に並べて表示(&amp;V)</translation>
    </message>
    <message>
        <source>Arrange windows side by side
Tile Vertically</source>
        <translation>ウィンドウを左右に並べます
左右に並べて表示</translation>
    </message>
    <message>
        <source>&amp;About Orrery Dyeworks...</source>
        <translation>Orrery Dyeworks のバージョン情報(&amp;A)...</translation>
    </message>
    <message>
        <source>Show the program&apos;s version and copyright
About</source>
        <translation>プログラムのバージョンと著作権を表示します
バージョン情報</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>Quit the program and ask to save documents
Exit</source>
        <translation>ファイルの保存を確認してプログラムを終了します
終了</translation>
    </message>
    <message>
        <source>&amp;Palette Bar</source>
        <translation>パレット バー(&amp;P)</translation>
    </message>
    <message>
        <source>Show or hide the palette bar.
Toggle Palette Bar</source>
        <translation>パレット バーの表示と非表示を切り替えます。
パレット バーの表示切り替え</translation>
    </message>
    <message>
        <source>Preview&amp;1</source>
        <translation>プレビュー&amp;1</translation>
    </message>
    <message>
        <source>Show or hide the preview 1 on target (Scopebox)
Toggle Preview1</source>
        <translation>ターゲット (Scopebox) のプレビュー 1 の表示と非表示を切り替えます
プレビュー 1 の切り替え</translation>
    </message>
    <message>
        <source>Preview&amp;2</source>
        <translation>プレビュー&amp;2</translation>
    </message>
    <message>
        <source>Show or hide the preview 2 on target (Scopebox)
Toggle Preview2</source>
        <translation>ターゲット (Scopebox) のプレビュー 2 の表示と非表示を切り替えます
プレビュー 2 の切り替え</translation>
    </message>
    <message>
        <source>Import Plug-In</source>
        <translation>インポート プラグイン</translation>
    </message>
    <message>
        <source>Export Plug-In</source>
        <translation>エクスポート プラグイン</translation>
    </message>
    <message>
        <source>&amp;Specify...</source>
        <translation>指定(&amp;S)...</translation>
    </message>
    <message>
        <source>Specify Zoom size.
Zoom to...</source>
        <translation>ズーム倍率を指定します。
ズーム指定...</translation>
    </message>
    <message>
        <source>&amp;Add to Project</source>
        <translation>プロジェクトに追加(&amp;A)</translation>
    </message>
    <message>
        <source>Add active document to current project.
Add to Project</source>
        <translation>作業中の文書を現在のプロジェクトに追加します。
プロジェクトに追加</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>保存時の状態に戻す(&amp;R)</translation>
    </message>
    <message>
        <source>Go back to the document as it was saved last
Revert</source>
        <translation>最後に保存したときの文書に戻します
保存時の状態に戻す</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新規作成(&amp;N)</translation>
    </message>
    <message>
        <source>Create a new document
New</source>
        <translation>新しい文書を作成します
新規作成</translation>
    </message>
    <message>
        <source>Print Set&amp;up...</source>
        <translation>プリンターの設定(&amp;U)...</translation>
    </message>
    <message>
        <source>Change the printer and printing options
Print Setup</source>
        <translation>プリンターと印刷オプションを変更します
プリンターの設定</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>印刷(&amp;P)...</translation>
    </message>
    <message>
        <source>Print the active document
Print</source>
        <translation>作業中の文書を印刷します
印刷</translation>
    </message>
    <message>
        <source>Print &amp;Directly</source>
        <translation>すぐに印刷(&amp;D)</translation>
    </message>
    <message>
        <source>Print the active document without asking
Print Directly</source>
        <translation>確認せずに作業中の文書を印刷します
すぐに印刷</translation>
    </message>
    <message>
        <source>Print Pre&amp;view</source>
        <translation>印刷プレビュー(&amp;V)</translation>
    </message>
    <message>
        <source>Display full pages
Print Preview</source>
        <translation>ページ全体を表示します
印刷プレビュー</translation>
    </message>
    <message>
        <source>&amp;New Window</source>
        <translation>新しいウィンドウを開く(&amp;N)</translation>
    </message>
    <message>
        <source>Open another window for the active document
New Window</source>
        <translation>作業中の文書を別のウィンドウで開きます
新しいウィンドウを開く</translation>
    </message>
    <message>
        <source>&amp;Tool Bar</source>
        <translation>ツール バー(&amp;T)</translation>
    </message>
    <message>
        <source>Show or hide the tool bar.
Toggle Tool Bar</source>
        <translation>ツール バーの表示と非表示を切り替えます。
ツール バーの表示切り替え</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>ステータス バー(&amp;S)</translation>
    </message>
    <message>
        <source>Show or hide the status bar.
Toggle Status Bar</source>
        <translation>ステータス バーの表示と非表示を切り替えます。
ステータス バーの表示切り替え</translation>
    </message>
    <message>
        <source>&amp;Draw Bar</source>
        <translation>描画バー(&amp;D)</translation>
    </message>
    <message>
        <source>Show or hide the draw bar.
Toggle Draw Bar</source>
        <translation>描画バーの表示と非表示を切り替えます。
描画バーの表示切り替え</translation>
    </message>
    <message>
        <source>&amp;View Bar</source>
        <translation>表示バー(&amp;V)</translation>
    </message>
    <message>
        <source>Show or hide the view bar.
Toggle View Bar</source>
        <translation>表示バーの表示と非表示を切り替えます。
表示バーの表示切り替え</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>&amp;Zoom</source>
        <translation>ズーム(&amp;Z)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>描画(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>パレット(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>ウィンドウ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>画像(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>インポート(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>エクスポート(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Bars</source>
        <translation>バー(&amp;B)</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
</context>
<context>
    <name>Text</name>
    <message>
        <source>Orrery Dyeworks</source>
        <translation>Orrery Dyeworks</translation>
    </message>
    <message>
        <source>The file or its folder does not exist.</source>
        <translation>ファイルまたはフォルダーがありません。</translation>
    </message>
    <message>
        <source>You do not have permission to use it.</source>
        <translation>アクセスする権限がありません。</translation>
    </message>
    <message>
        <source>The name is that of a folder.</source>
        <translation>指定された名前はフォルダーのものです。</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>ディスクに空き容量がありません。</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <translation>ディスクは読み取り専用です。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
    <message>
        <source>The file does not fit into memory.</source>
        <translation>ファイルが大きすぎてメモリーに入りません。</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>ディスクでエラーが発生しました。</translation>
    </message>
    <message>
        <source>Cannot save &quot;%1&quot;.
%2</source>
        <translation>「%1」を保存できません。
%2</translation>
    </message>
    <message>
        <source>Save changes to %1?</source>
        <translation>%1 への変更を保存しますか?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist.
Please check the name.</source>
        <translation>「%1」が見つかりません。
名前を確認してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already.
Do you want to replace it?</source>
        <translation>「%1」は既に存在します。
上書きしますか?</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>描画</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>No palette is open.</source>
        <translation>パレットが開かれていません。</translation>
    </message>
    <message>
        <source>Open palettes</source>
        <translation>開いているパレット</translation>
    </message>
    <message>
        <source>Palette colours</source>
        <translation>パレットの色</translation>
    </message>
    <message>
        <source>Entry to draw with: number, value and channels</source>
        <translation>描画に使う色: 番号、値、各成分</translation>
    </message>
    <message>
        <source>&amp;Bank</source>
        <translation>バンク(&amp;B)</translation>
    </message>
    <message>
        <source>The 16 entries of the palette that the image is shown through</source>
        <translation>画像の表示に使うパレットの 16 色</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Version (Orrery Dyeworks)</source>
        <translation>バージョン情報 (Orrery Dyeworks)</translation>
    </message>
    <message>
        <source>Orrery Dyeworks Version</source>
        <translation>Orrery Dyeworks バージョン</translation>
    </message>
    <message>
        <source>Editor for colour-indexed console textures</source>
        <translation>ゲーム機用パレットテクスチャの編集ソフト</translation>
    </message>
    <message>
        <source>Enter an integer between %1 and %2.</source>
        <translation>%1 から %2 までの整数を入力してください。</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規作成</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>テクスチャ</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>幅(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高さ(&amp;H):</translation>
    </message>
    <message>
        <source>Bit mode:</source>
        <translation>ビット モード:</translation>
    </message>
    <message>
        <source>&amp;4bit (16colors)</source>
        <translation>&amp;4bit (16色)</translation>
    </message>
    <message>
        <source>&amp;8bit (256colors)</source>
        <translation>&amp;8bit (256色)</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>サイズ:</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>Width of the image in texels, 0 to 1024</source>
        <translation>画像の幅 (テクセル数、0 から 1024)</translation>
    </message>
    <message>
        <source>Height of the image in texels, 0 to 1024</source>
        <translation>画像の高さ (テクセル数、0 から 1024)</translation>
    </message>
    <message>
        <source>Each texel is one of the 16 colours of a palette bank</source>
        <translation>各テクセルはパレット バンクの 16 色のいずれかになります</translation>
    </message>
    <message>
        <source>Each texel is one of the 256 colours of a palette</source>
        <translation>各テクセルはパレットの 256 色のいずれかになります</translation>
    </message>
    <message>
        <source>Memory that the texels of the image take</source>
        <translation>画像のテクセルが占めるメモリの大きさ</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>文書を印刷できませんでした。</translation>
    </message>
    <message>
        <source>Printing page %1 of %2...</source>
        <translation>%2 ページ中 %1 ページ目を印刷しています...</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;.</source>
        <translation>「%1」を読み込めません。</translation>
    </message>
    <message>
        <source>Go back to the saved file?
The changes to &quot;%1&quot; will be lost.</source>
        <translation>保存されたファイルに戻しますか?
「%1」への変更は失われます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another window.</source>
        <translation>「%1」は別のウィンドウで開かれています。</translation>
    </message>
</context>
</TS>
